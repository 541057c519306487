#pragma once

#include "Shared/SMCKit/SMCConnection.h"
#include "Simulator/Hardware/MachineHardware.h"
#include "Simulator/Hardware/ProfileLibrary.h"

#include <gmock/gmock.h>

namespace kestrowind {

/// A notebook with two fans, the second of which spells its mode key the other way; its fans take
/// 3 seconds to unlock.
inline MachineProfile notebookProfile() {
    MachineProfile profile = ProfileLibrary::load(QStringLiteral("notebook-2fan")).value();
    profile.fans[1].modeKeySuffix = "md";
    return profile;
}

/// The hardware in process, and an open connection to its SMC.
struct SimulatedHardware {
    explicit SimulatedHardware(double load, MachineProfile profile = notebookProfile())
        : hardware(*smc, std::move(profile), load) {}

    /// Time passes as it does in a running machine.
    void run(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.1)
            hardware.step(0.1);
    }
    double read(std::string_view key) {
        return static_cast<double>(connection->readFloat(key).value());
    }
    void takeFans() {
        ASSERT_TRUE(connection->writeUInt8("Ftst", 1));
        run(3.2);
        ASSERT_TRUE(connection->writeUInt8("F0Md", 1));
        ASSERT_TRUE(connection->writeUInt8("F1md", 1));
    }

    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    MachineHardware hardware;
    std::unique_ptr<SMCConnection> connection = SMCConnection::open(smc).value();
};

} // namespace kestrowind
