#pragma once

#include "Shared/SMCKit/SMCUserClient.h"

namespace kestrowind {

/// The SMC's user client in the kernel, through IOKit's C interface.
class IOKitUserClient final : public SMCUserClient {
public:
    [[nodiscard]] std::uint32_t matchingService(std::string_view className) override;
    void releaseService(std::uint32_t service) override;
    [[nodiscard]] Opened open(std::uint32_t service, std::uint32_t connectionType) override;
    void close(std::uint32_t connection) override;
    [[nodiscard]] std::int32_t callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                                const SMCParamStruct& input,
                                                SMCParamStruct& output) override;
};

} // namespace kestrowind
