#pragma once

#include "Shared/SMCKit/SMCParamStruct.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace kestrowind {

/// What the kernel offers to reach the System Management Controller: finding its service, opening a
/// user client on it, and one struct method. Implementations make no decisions. An object is used
/// from one thread at a time.
class SMCUserClient {
public:
    struct Opened {
        std::int32_t code = 0;        ///< kernel return code; 0 is success
        std::uint32_t connection = 0; ///< handle of the user client, not 0 on success
    };

    SMCUserClient() = default;
    SMCUserClient(const SMCUserClient&) = delete;
    SMCUserClient& operator=(const SMCUserClient&) = delete;
    virtual ~SMCUserClient() = default;

    /// A handle of the first service of this class, to be released; 0 when there is none.
    [[nodiscard]] virtual std::uint32_t matchingService(std::string_view className) = 0;
    virtual void releaseService(std::uint32_t service) = 0;

    [[nodiscard]] virtual Opened open(std::uint32_t service, std::uint32_t connectionType) = 0;
    virtual void close(std::uint32_t connection) = 0;

    /// Calls a struct method with an 80-byte record each way; returns the kernel's code.
    [[nodiscard]] virtual std::int32_t callStructMethod(std::uint32_t connection,
                                                        std::uint32_t selector,
                                                        const SMCParamStruct& input,
                                                        SMCParamStruct& output) = 0;
};

/// Makes the machine's user client; called on the thread that will use it.
using SMCUserClientFactory = std::function<std::shared_ptr<SMCUserClient>()>;

} // namespace kestrowind
