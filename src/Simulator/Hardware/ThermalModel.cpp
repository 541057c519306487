#include "Simulator/Hardware/ThermalModel.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

double lagFraction(double seconds, double timeConstant) {
    return -std::expm1(-seconds / timeConstant);
}

double systemDemand(const SystemControlProfile& control, double hottest) {
    const double way = (hottest - control.quietBelow) / (control.fullAt - control.quietBelow);
    // Cubed, because the system would rather be warm than heard.
    return std::pow(std::clamp(way, 0.0, 1.0), 3);
}

ThermalModel::ThermalModel(ThermalProfile profile)
    : m_profile(profile)
    , m_cpu(profile.ambient)
    , m_gpu(profile.ambient) {}

double ThermalModel::settled(const HeatProfile& heat, double load, double fanFraction) const {
    const double rise = heat.idle + heat.full * load;
    return m_profile.ambient + rise / (1 + m_profile.cooling * fanFraction);
}

void ThermalModel::settle(double load, double fanFraction) {
    m_cpu = settled(m_profile.cpu, load, fanFraction);
    m_gpu = settled(m_profile.gpu, load, fanFraction);
}

void ThermalModel::step(double seconds, double load, double fanFraction) {
    const double made = lagFraction(seconds, m_profile.timeConstant);
    m_cpu += made * (settled(m_profile.cpu, load, fanFraction) - m_cpu);
    m_gpu += made * (settled(m_profile.gpu, load, fanFraction) - m_gpu);
}

} // namespace kestrowind
