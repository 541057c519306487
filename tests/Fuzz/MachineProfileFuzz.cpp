#include "Fuzz/Require.h"
#include "Simulator/Hardware/MachineHardware.h"
#include "Simulator/Hardware/MachineProfile.h"

#include <cmath>
#include <cstdint>

using namespace kestrowind;

/// A machine profile from a file: what is accepted is a machine that runs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto profile = parseMachineProfile({reinterpret_cast<const char*>(data), size});
    if (!profile) {
        KESTROWIND_REQUIRE(!profile.error().empty());
        return 0;
    }
    SimulatedSMC smc;
    MachineHardware hardware(smc, std::move(*profile), 0.5);
    for (const double seconds : {0.1, 1.0, 60.0})
        hardware.step(seconds);
    for (const auto& fan : hardware.fans())
        KESTROWIND_REQUIRE(std::isfinite(fan.actualRPM));
    return 0;
}
