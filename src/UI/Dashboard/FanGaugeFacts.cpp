#include "UI/Dashboard/FanGaugeFacts.h"

#include "Core/FanReasonText.h"
#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "UI/Dashboard/FanSpeedHistory.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

/// Revolutions per second: far slower than the fan, so that the eye can follow.
constexpr double fastestSpin = 2.2;

} // namespace

FanGaugeFacts FanGaugeFacts::of(const SMCFanReading& fan, const FanReason& reason,
                                qsizetype position, qsizetype totalFanCount) {
    const FanFacts facts = FanFacts::of(fan, totalFanCount);
    const double applied = reason.isDriven() ? reason.appliedSpeed.value_or(0) : 0;
    const bool hasTarget = applied > 0 && facts.hasFraction;
    // Smaller changes would move the gauge without anybody seeing more.
    const auto rounded = [](double part) { return std::round(part * 1000) / 1000; };
    const double fraction = rounded(facts.fraction);
    return {
        .index = facts.index,
        .name = facts.name,
        .readout = facts.speed,
        .caption = localized(facts.isStill ? "gauge.readout.parked" : "gauge.readout.rpm"),
        .spoken = facts.isStill
                      ? localized("dashboard.fans.spokenParked").arg(facts.name)
                      : localized("dashboard.fans.spokenSpeed").arg(facts.name, facts.speed),
        .reason = FanReasonText::sentence(reason),
        .explanation = FanReasonText::chain(reason).join(u'\n'),
        .targetText =
            hasTarget ? localized("dashboard.fans.target").arg(WholeNumberText::rounded(applied))
                      : QString(),
        .targetFraction = hasTarget ? rounded(std::min(applied / fan.maxRPM, 1.0)) : -1,
        .fraction = fraction,
        .revolutionsPerSecond = fastestSpin * fraction,
        .isParked = !(fraction > 0),
        .isDashed = FanSpeedHistory::isDashed(position),
    };
}

QList<FanGaugeFacts> FanGaugeFacts::of(const std::vector<SMCFanReading>& fans,
                                       const QList<FanReason>& reasons) {
    QList<FanGaugeFacts> all;
    for (const SMCFanReading& fan : fans)
        all.append(of(fan, reasons.at(all.size()), all.size(), reasons.size()));
    return all;
}

} // namespace kestrowind
