#pragma once

#include "Shared/SMCKit/SMCUserClient.h"
#include "Simulator/Link/SMCWire.h"

#include <chrono>
#include <expected>
#include <filesystem>

namespace kestrowind {

/// The SMC user client of a program inside a simulated Mac: the kernel is on the other end of a
/// socket. A machine that has gone away looks like one whose device was removed, one that does not
/// answer like a kernel call that timed out.
class SMCLink final : public SMCUserClient {
public:
    explicit SMCLink(std::filesystem::path socket,
                     std::chrono::milliseconds answerTimeout = std::chrono::seconds(2));
    ~SMCLink() override;

    [[nodiscard]] std::uint32_t matchingService(std::string_view className) override;
    void releaseService(std::uint32_t service) override;
    [[nodiscard]] Opened open(std::uint32_t service, std::uint32_t connectionType) override;
    void close(std::uint32_t connection) override;
    [[nodiscard]] std::int32_t callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                                const SMCParamStruct& input,
                                                SMCParamStruct& output) override;

private:
    /// The reply, or the kernel's code that stands for a line that is broken or silent.
    using Answer = std::expected<SMCWire::Reply, std::int32_t>;

    bool connectToKernel();
    Answer exchange(SMCWire::Request request);

    std::filesystem::path m_path;
    std::chrono::milliseconds m_answerTimeout;
    int m_socket = -1;
    std::uint32_t m_sequence = 0;
};

} // namespace kestrowind
