#include "Shared/SMCKit/FourCC.h"
#include "Simulator/Hardware/MachineProfile.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace kestrowind {

std::optional<std::uint32_t> parseKeyName(std::string_view text) {
    if (text.size() == 4)
        return smcFourCC(text);
    if (text.size() != 10 || !text.starts_with("0x"))
        return std::nullopt;
    std::uint32_t name = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data() + 2, end, name, 16);
    if (parsed.ec != std::errc() || parsed.ptr != end)
        return std::nullopt;
    return name;
}

std::string keyNameText(std::uint32_t name) {
    std::string text = smcFourCCString(name);
    const auto printable = [](char character) { return character >= ' ' && character <= '~'; };
    const bool unpackedAsGiven = smcFourCC(text) == name;
    if (unpackedAsGiven && std::ranges::all_of(text, printable))
        return text;
    char digits[11];
    std::snprintf(digits, sizeof digits, "0x%08x", name);
    return digits;
}

std::optional<std::vector<std::uint8_t>> parseHexBytes(std::string_view digits) {
    if (digits.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::uint8_t> bytes;
    for (std::size_t at = 0; at < digits.size(); at += 2) {
        std::uint8_t byte = 0;
        const char* const end = digits.data() + at + 2;
        const auto parsed = std::from_chars(digits.data() + at, end, byte, 16);
        if (parsed.ec != std::errc() || parsed.ptr != end)
            return std::nullopt;
        bytes.push_back(byte);
    }
    return bytes;
}

} // namespace kestrowind
