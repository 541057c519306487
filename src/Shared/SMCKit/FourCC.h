#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrowind {

/// Packs a key or type name into the SMC's 32-bit code, first character most significant.
/// Names are used as given: no padding, and of a longer name only the last four bytes remain.
[[nodiscard]] constexpr std::uint32_t smcFourCC(std::string_view name) noexcept {
    std::uint32_t code = 0;
    for (const char character : name)
        code = (code << 8) | static_cast<unsigned char>(character);
    return code;
}

/// The four characters of a code. Zero bytes stay as NUL characters; a byte of 0x80 or above is not
/// ASCII and makes the whole text "????".
[[nodiscard]] std::string smcFourCCString(std::uint32_t code);

} // namespace kestrowind
