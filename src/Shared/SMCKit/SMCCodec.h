#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace kestrowind {

// Value bytes by data type. There are exactly these decodings: a key of any other type
// (fixed-point, signed) is unusable where a number is needed. The caller checks type and length.

/// IEEE-754 binary32 in little-endian byte order, the SMC's "flt ".
[[nodiscard]] float decodeFloat(std::span<const std::uint8_t, 4> bytes) noexcept;
[[nodiscard]] std::array<std::uint8_t, 4> encodeFloat(float value) noexcept;

/// Unsigned 32 bits, most significant byte first: how "#KEY" counts.
[[nodiscard]] std::uint32_t decodeBigEndian32(std::span<const std::uint8_t, 4> bytes) noexcept;
[[nodiscard]] std::array<std::uint8_t, 4> encodeBigEndian32(std::uint32_t value) noexcept;

} // namespace kestrowind
