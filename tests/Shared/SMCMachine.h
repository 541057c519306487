#pragma once

#include "Shared/SMCKit/SMCConnection.h"
#include "Simulator/SimulatedSMC.h"

#include <gmock/gmock.h>

namespace kestrowind {

/// A simulated SMC with an open connection to it.
struct SMCMachine {
    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    std::unique_ptr<SMCConnection> connection = SMCConnection::open(smc).value();

    void addFan(int index) {
        smc->setFloat(smcFanKey(index, "Ac"), 2000.5F);
        smc->setFloat(smcFanKey(index, "Tg"), 2100);
        smc->setFloat(smcFanKey(index, "Mn"), 1200);
        smc->setFloat(smcFanKey(index, "Mx"), 5900);
        smc->setByte(smcFanKey(index, "Md"), 1);
    }

    /// What the SMC is asked for by an action.
    SimulatedSMC::Counts countsOf(const std::function<void()>& action) {
        smc->resetCounts();
        action();
        return smc->counts();
    }
};

/// The words of a failure, empty for a success.
template <class T>
std::string failure(const SMCResult<T>& result) {
    return result ? std::string() : description(result.error());
}

} // namespace kestrowind
