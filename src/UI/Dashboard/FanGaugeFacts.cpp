#include "UI/Dashboard/FanGaugeFacts.h"

#include "Core/FanNaming.h"
#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "UI/Dashboard/FanSpeedHistory.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

constexpr double fastestSpin = 2.2;

} // namespace

namespace FanGaugeReadout {

double speedFraction(const SMCFanReading& fan) {
    if (!(fan.actualRPM > 0) || !(fan.maxRPM > 0))
        return 0;
    const double fraction = std::min(fan.actualRPM / fan.maxRPM, 1.0);
    return std::isfinite(fraction) ? std::round(fraction * 1000) / 1000 : 0;
}

double spinFactor(const SMCFanReading& fan) {
    return fastestSpin * speedFraction(fan);
}

} // namespace FanGaugeReadout

FanGaugeFacts FanGaugeFacts::of(const SMCFanReading& fan, qsizetype position,
                                qsizetype totalFanCount) {
    const bool isStill = fan.actualRPM <= 0;
    const double spin = FanGaugeReadout::spinFactor(fan);
    FanGaugeFacts facts{
        .index = fan.index,
        .name = sharedFanName(fan.index, static_cast<int>(totalFanCount)),
        .readout = WholeNumberText::truncated(fan.actualRPM),
        .caption = localized(isStill ? "gauge.readout.parked" : "gauge.readout.rpm"),
        .fraction = FanGaugeReadout::speedFraction(fan),
        .revolutionsPerSecond = spin,
        .isParked = !(spin > 0),
        .isDashed = FanSpeedHistory::isDashed(position),
    };
    facts.spoken = isStill ? localized("dashboard.fans.spokenParked").arg(facts.name)
                           : localized("dashboard.fans.spokenSpeed").arg(facts.name, facts.readout);
    return facts;
}

} // namespace kestrowind
