#include "Core/FanReason.h"

#include "Core/ControlArithmetic.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

using Cause = FanReason::Cause;
using Movement = FanReason::Movement;

/// Speeds nearer than this are the same: a fan's own reading sways by as much.
constexpr double speedTolerance = 100;
/// What the helper applies is rounded on its way.
constexpr double roundingTolerance = 1;
constexpr double temperatureTolerance = 0.05;

Cause causeOf(const FanReason& reason, const ControlState::Facts& control) {
    if (control.isHelperMissing())
        return Cause::noHelper;
    const bool isAnythingAsked = reason.askedSpeed > 0;
    if (!reason.preset && !isAnythingAsked)
        return Cause::automatic;
    const double applied = reason.appliedSpeed.value_or(0);
    if (!isAnythingAsked && applied <= 0)
        return Cause::noDemand;
    if (control.isTakingControl())
        return Cause::waitingForControl;
    if (!reason.appliedSpeed || control.isDenied || control.hasFailed())
        return Cause::notConfirmed;
    if (applied > reason.askedSpeed + roundingTolerance)
        return Cause::safetyFloor;
    if (applied < reason.askedSpeed - roundingTolerance)
        return Cause::notConfirmed;
    return reason.boostPercent >= reason.curvePercent ? Cause::quickBoost : Cause::curve;
}

Movement movementOf(const FanReason& reason) {
    const double missing = reason.appliedSpeed.value_or(0) - reason.actualSpeed;
    if (!reason.isDriven() || !(std::abs(missing) > speedTolerance))
        return Movement::settled;
    return missing > 0 ? Movement::speedingUp : Movement::slowingDown;
}

} // namespace

bool FanReason::isCoolingDown() const {
    return temperature > measuredTemperature + temperatureTolerance;
}

FanReason FanReason::of(const ControlState::Facts& control, const ControlDemand& demand,
                        const std::vector<double>& appliedSpeeds, const TelemetrySample& sample,
                        std::size_t position) {
    const auto fanCount = static_cast<qsizetype>(sample.fans.size());
    const QList<double> curvePercents =
        ControlArithmetic::requestedPercents(demand.preset, demand.temperature, 0, fanCount);
    const auto speedIn = [position](const std::vector<double>& speeds) {
        return position < speeds.size() ? std::optional(speeds[position]) : std::nullopt;
    };
    FanReason reason{
        .preset = demand.preset ? std::optional(demand.preset->name) : std::nullopt,
        .temperature = demand.temperature,
        .measuredTemperature = demand.measuredTemperature,
        .hottestTemperature = sample.temperatures.hottest,
        .curvePercent = curvePercents.value(static_cast<qsizetype>(position)),
        .boostPercent = demand.boostPercent,
        .askedSpeed = speedIn(demand.targets).value_or(0),
        .appliedSpeed = speedIn(appliedSpeeds),
        .actualSpeed = sample.fans[position].actualRPM,
    };
    reason.cause = causeOf(reason, control);
    reason.movement = movementOf(reason);
    return reason;
}

const char* FanReason::word(Cause cause) {
    switch (cause) {
    case Cause::noHelper:
        return "noHelper";
    case Cause::automatic:
        return "automatic";
    case Cause::noDemand:
        return "noDemand";
    case Cause::waitingForControl:
        return "waitingForControl";
    case Cause::notConfirmed:
        return "notConfirmed";
    case Cause::curve:
        return "curve";
    case Cause::quickBoost:
        return "quickBoost";
    case Cause::safetyFloor:
        return "safetyFloor";
    }
    return "";
}

} // namespace kestrowind
