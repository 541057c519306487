#pragma once

#include "Simulator/Hardware/MachineProfile.h"

namespace kestrowind {

/// The temperatures of a machine's two hot parts, degrees Celsius. Each strives towards what its
/// load heats it to and the fans leave of that, as a first-order lag. Load and fan fraction are 0
/// to 1; a fan fraction is a speed divided by the greatest.
class ThermalModel {
public:
    explicit ThermalModel(ThermalProfile profile);

    void settle(double load, double fanFraction);
    void step(double seconds, double load, double fanFraction);

    [[nodiscard]] double cpu() const { return m_cpu; }
    [[nodiscard]] double gpu() const { return m_gpu; }
    [[nodiscard]] double hottest() const { return m_cpu > m_gpu ? m_cpu : m_gpu; }

private:
    [[nodiscard]] double settled(const HeatProfile& heat, double load, double fanFraction) const;

    ThermalProfile m_profile;
    double m_cpu;
    double m_gpu;
};

/// How much of a first-order lag is made up in some time: 0 at none, towards 1 for ever.
[[nodiscard]] double lagFraction(double seconds, double timeConstant);

/// Which part of their range the system gives the fans at a temperature in degrees Celsius, 0 to 1.
[[nodiscard]] double systemDemand(const SystemControlProfile& control, double hottest);

} // namespace kestrowind
