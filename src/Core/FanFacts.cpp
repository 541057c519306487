#include "Core/FanFacts.h"

#include "Core/FanNaming.h"
#include "Core/WholeNumberText.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

double speedFraction(const SMCFanReading& fan) {
    if (!(fan.actualRPM > 0) || !(fan.maxRPM > 0))
        return 0;
    const double fraction = std::min(fan.actualRPM / fan.maxRPM, 1.0);
    return std::isfinite(fraction) ? fraction : 0;
}

} // namespace

FanFacts FanFacts::of(const SMCFanReading& fan, qsizetype totalFanCount) {
    return {.index = fan.index,
            .name = sharedFanName(fan.index, static_cast<int>(totalFanCount)),
            .speed = WholeNumberText::truncated(fan.actualRPM),
            .isStill = fan.actualRPM <= 0,
            .fraction = speedFraction(fan),
            .hasFraction =
                std::isfinite(fan.actualRPM) && std::isfinite(fan.maxRPM) && fan.maxRPM > 0};
}

} // namespace kestrowind
