#include "Shared/HelperShared/Linux/HelperWire.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace kestrowind::HelperWire {
namespace {

bool mayStandAsItIs(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= 'a' && byte <= 'z') || (byte != '\0' && std::strchr("-_/.", byte) != nullptr);
}

} // namespace

std::string busAddress(const std::filesystem::path& socket) {
    std::string address = "unix:path=";
    for (const char byte : socket.string()) {
        if (mayStandAsItIs(byte)) {
            address += byte;
            continue;
        }
        char escaped[4];
        std::snprintf(escaped, sizeof escaped, "%%%02x", static_cast<std::uint8_t>(byte));
        address += escaped;
    }
    return address;
}

} // namespace kestrowind::HelperWire
