#pragma once

#include "Shared/SMCKit/SMCUserClient.h"
#include "Simulator/SimulatedSMC.h"

#include <array>
#include <bit>
#include <mutex>
#include <optional>

namespace kestrowind {

/// A simulated SMC behind a kernel that fails at one kind of call, once or until it is mended. May
/// be used from any thread.
class FaultySMC final : public SMCUserClient {
public:
    enum class Kind {
        kernelFails,
        refuses,
        answersZeros,
        answersNonsense, ///< successfully, with every bit set
    };
    struct Fault {
        std::uint8_t command = 0; ///< as in the record
        Kind kind = Kind::kernelFails;
        bool isForGood = false;
        std::optional<std::uint32_t> key = {}; ///< absent: whichever is asked for
    };

    explicit FaultySMC(std::shared_ptr<SimulatedSMC> smc)
        : m_smc(std::move(smc)) {}

    void setFault(std::optional<Fault> fault) {
        const std::lock_guard lock(m_mutex);
        m_fault = fault;
    }

    std::uint32_t matchingService(std::string_view name) override {
        return m_smc->matchingService(name);
    }
    void releaseService(std::uint32_t service) override { m_smc->releaseService(service); }
    Opened open(std::uint32_t service, std::uint32_t type) override {
        return m_smc->open(service, type);
    }
    void close(std::uint32_t connection) override { m_smc->close(connection); }
    std::int32_t callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                  const SMCParamStruct& input, SMCParamStruct& output) override {
        const std::int32_t code = m_smc->callStructMethod(connection, selector, input, output);
        const std::lock_guard lock(m_mutex);
        if (!m_fault || m_fault->command != input.data8 ||
            (m_fault->key && *m_fault->key != input.key))
            return code;
        const Kind kind = m_fault->kind;
        if (!m_fault->isForGood)
            m_fault.reset();
        return spoil(kind, output);
    }

private:
    static std::int32_t spoil(Kind kind, SMCParamStruct& output) {
        constexpr auto timedOut = static_cast<std::int32_t>(0xe00002d6);
        if (kind == Kind::kernelFails)
            return timedOut;
        if (kind == Kind::refuses) {
            output.result = SimulatedSMC::resultRefused;
            return 0;
        }
        std::array<std::uint8_t, sizeof output> record{};
        record.fill(kind == Kind::answersZeros ? 0 : 0xff);
        output = std::bit_cast<SMCParamStruct>(record);
        output.result = 0;
        return 0;
    }

    std::shared_ptr<SimulatedSMC> m_smc;
    std::mutex m_mutex;
    std::optional<Fault> m_fault;
};

} // namespace kestrowind
