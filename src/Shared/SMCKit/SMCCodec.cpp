#include "Shared/SMCKit/SMCCodec.h"

#include <bit>

namespace kestrowind {

static_assert(std::endian::native == std::endian::little,
              "the SMC's records and floats are little-endian on every Mac this is built for");

float decodeFloat(std::span<const std::uint8_t, 4> bytes) noexcept {
    return std::bit_cast<float>(std::array{bytes[0], bytes[1], bytes[2], bytes[3]});
}

std::array<std::uint8_t, 4> encodeFloat(float value) noexcept {
    return std::bit_cast<std::array<std::uint8_t, 4>>(value);
}

std::uint32_t decodeBigEndian32(std::span<const std::uint8_t, 4> bytes) noexcept {
    return std::byteswap(
        std::bit_cast<std::uint32_t>(std::array{bytes[0], bytes[1], bytes[2], bytes[3]}));
}

std::array<std::uint8_t, 4> encodeBigEndian32(std::uint32_t value) noexcept {
    return std::bit_cast<std::array<std::uint8_t, 4>>(std::byteswap(value));
}

} // namespace kestrowind
