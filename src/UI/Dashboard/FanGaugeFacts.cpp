#include "UI/Dashboard/FanGaugeFacts.h"

#include "Core/LocalizedText.h"
#include "UI/Dashboard/FanSpeedHistory.h"

#include <cmath>

namespace kestrowind {
namespace {

/// Revolutions per second: far slower than the fan, so that the eye can follow.
constexpr double fastestSpin = 2.2;

} // namespace

FanGaugeFacts FanGaugeFacts::of(const SMCFanReading& fan, qsizetype position,
                                qsizetype totalFanCount) {
    const FanFacts facts = FanFacts::of(fan, totalFanCount);
    // Smaller changes would move the gauge without anybody seeing more.
    const double fraction = std::round(facts.fraction * 1000) / 1000;
    return {
        .index = facts.index,
        .name = facts.name,
        .readout = facts.speed,
        .caption = localized(facts.isStill ? "gauge.readout.parked" : "gauge.readout.rpm"),
        .spoken = facts.isStill
                      ? localized("dashboard.fans.spokenParked").arg(facts.name)
                      : localized("dashboard.fans.spokenSpeed").arg(facts.name, facts.speed),
        .fraction = fraction,
        .revolutionsPerSecond = fastestSpin * fraction,
        .isParked = !(fraction > 0),
        .isDashed = FanSpeedHistory::isDashed(position),
    };
}

QList<FanGaugeFacts> FanGaugeFacts::of(const std::vector<SMCFanReading>& fans) {
    QList<FanGaugeFacts> all;
    for (const SMCFanReading& fan : fans)
        all.append(of(fan, all.size(), static_cast<qsizetype>(fans.size())));
    return all;
}

} // namespace kestrowind
