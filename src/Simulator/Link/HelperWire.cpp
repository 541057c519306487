#include "Simulator/Link/HelperWire.h"

#include <string_view>

namespace kestrowind {

std::string HelperWire::busAddress(const std::filesystem::path& socket) {
    // What D-Bus takes as it is in an address; every other byte is a % and two digits.
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_/.\\*";
    constexpr std::string_view digits = "0123456789abcdef";
    std::string address = "unix:path=";
    for (const char byte : socket.string()) {
        if (plain.contains(byte)) {
            address += byte;
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        address += {'%', digits[value >> 4], digits[value & 0xf]};
    }
    return address;
}

} // namespace kestrowind
