#pragma once

#include "Simulator/Hardware/MachineProfile.h"
#include "Simulator/Hardware/ThermalModel.h"
#include "Simulator/SimulatedSMC.h"

#include <memory>
#include <string>
#include <vector>

namespace kestrowind {

/// The physics behind a simulated Mac's SMC: fills the key table from a profile, decides which
/// writes the firmware accepts, and moves temperatures and fans on as time passes.
///
/// Belongs to one thread, which is also the one that calls the SMC. The SMC must outlive it, and no
/// fan key may be written to any more once it is gone.
class MachineHardware {
public:
    /// One fan as it truly turns, whatever the SMC has been told to show.
    struct Fan {
        FanProfile profile;
        double actualRPM = 0;
        double targetRPM = 0;
        bool manual = false;
    };

    /// The machine has been running for long under this load: 0 to 1.
    MachineHardware(SimulatedSMC& smc, MachineProfile profile, double load);

    void setLoad(double load);
    void step(double seconds);

    [[nodiscard]] const MachineProfile& profile() const { return m_profile; }
    [[nodiscard]] double load() const { return m_load; }
    [[nodiscard]] const ThermalModel& temperatures() const { return m_thermal; }
    [[nodiscard]] const std::vector<Fan>& fans() const { return m_fans; }

private:
    void createKeys();
    void createFanKeys(std::size_t index);
    void createUnlockKey();
    void createReadOnly(std::string_view name);
    void settle();
    [[nodiscard]] double fanFraction() const;
    [[nodiscard]] double systemTarget(const Fan& fan) const;
    [[nodiscard]] bool isUnlocked() const;
    std::uint8_t writeMode(Fan& fan, std::uint8_t mode);
    std::uint8_t writeTarget(Fan& fan, double target);
    std::uint8_t writeUnlock(std::uint8_t value);
    void publish();

    SimulatedSMC& m_smc;
    MachineProfile m_profile;
    ThermalModel m_thermal;
    std::vector<Fan> m_fans;
    double m_load;
    bool m_isUnlocking = false;
    double m_unlockElapsed = 0; ///< seconds that the unlock key has been on
};

} // namespace kestrowind
