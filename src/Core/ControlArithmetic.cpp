#include "Core/ControlArithmetic.h"

#include "Shared/HelperShared/FanTargets.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

double ControlArithmetic::smoothedTemperature(double previous, double measured,
                                              std::optional<double> elapsedSeconds) {
    if (previous <= measured)
        return measured;
    return std::max(measured,
                    previous - coolingPerSecond * std::max(elapsedSeconds.value_or(0), 0.0));
}

QList<double> ControlArithmetic::requestedPercents(const std::optional<FanPreset>& preset,
                                                   double temperature, double quickBoostPercent,
                                                   qsizetype fanCount) {
    QList<double> percents =
        preset ? preset->percents(temperature, fanCount) : QList<double>(fanCount, 0.0);
    for (double& percent : percents)
        percent = std::max(quickBoostPercent, percent);
    return percents;
}

double ControlArithmetic::target(double percent, const SMCFanReading& fan) {
    if (!(fan.maxRPM > fan.minRPM) || !(percent > 0))
        return 0;
    const double speed =
        std::round(fan.minRPM + (fan.maxRPM - fan.minRPM) * std::min(percent, 100.0) / 100);
    // Limits that no fan has were misread. The helper would refuse such a speed, and with it the
    // targets of all the other fans.
    return checkFanSpeeds(std::span(&speed, 1)) ? speed : 0;
}

std::vector<double> ControlArithmetic::targets(const QList<double>& requestedPercents,
                                               std::span<const SMCFanReading> fans) {
    std::vector<double> targets;
    const auto count = std::min(static_cast<std::size_t>(requestedPercents.size()), fans.size());
    for (std::size_t fan = 0; fan < count; ++fan)
        targets.push_back(target(requestedPercents.at(static_cast<qsizetype>(fan)), fans[fan]));
    return targets;
}

} // namespace kestrowind
