#pragma once

#include "Shared/SMCKit/SMCConnection.h"
#include "Simulator/Hardware/MachineHardware.h"

#include <gmock/gmock.h>

namespace kestrowind {

/// A notebook without a unit of its own: one sensor a part, 3 seconds to unlock.
inline MachineProfile notebookProfile() {
    return {.model = "Notebook1,1",
            .cpu = "Some processor",
            .osVersion = "Version 15.5",
            .thermal = {.ambient = 25,
                        .timeConstant = 7,
                        .cooling = 1.67,
                        .cpu = {.idle = 14.2, .full = 129.6},
                        .gpu = {.idle = 12.5, .full = 108}},
            .systemControl = {},
            .fans = {{.minimum = 1350, .maximum = 5780, .inertia = 1.2, .modeKeySuffix = "Md"},
                     {.minimum = 1350, .maximum = 6240, .inertia = 1.2, .modeKeySuffix = "md"}},
            .unlockSeconds = 3,
            .sensors = {{.name = smcFourCC("Tp01"), .part = SensorProfile::Part::cpu, .offset = 0},
                        {.name = smcFourCC("Tg0D"), .part = SensorProfile::Part::gpu, .offset = 0}},
            .keys = {}};
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
