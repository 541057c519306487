#include "Shared/SMCKit/macOS/IOKitUserClient.h"

#include <IOKit/IOKitLib.h>

#include <string>

namespace kestrowind {

static_assert(sizeof(io_object_t) == sizeof(std::uint32_t));
static_assert(sizeof(kern_return_t) == sizeof(std::int32_t));

std::uint32_t IOKitUserClient::matchingService(std::string_view className) {
    // The look-up takes over the dictionary's reference.
    return IOServiceGetMatchingService(kIOMainPortDefault,
                                       IOServiceMatching(std::string(className).c_str()));
}

void IOKitUserClient::releaseService(std::uint32_t service) {
    IOObjectRelease(service);
}

SMCUserClient::Opened IOKitUserClient::open(std::uint32_t service, std::uint32_t connectionType) {
    io_connect_t connection = IO_OBJECT_NULL;
    const kern_return_t code =
        IOServiceOpen(service, mach_task_self(), connectionType, &connection);
    return {.code = code, .connection = connection};
}

void IOKitUserClient::close(std::uint32_t connection) {
    IOServiceClose(connection);
}

std::int32_t IOKitUserClient::callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                               const SMCParamStruct& input,
                                               SMCParamStruct& output) {
    std::size_t outputSize = sizeof output;
    return IOConnectCallStructMethod(connection, selector, &input, sizeof input, &output,
                                     &outputSize);
}

} // namespace kestrowind
