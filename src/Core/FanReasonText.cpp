#include "Core/FanReasonText.h"

#include "Core/FanReason.h"
#include "Core/LocalizedText.h"
#include "Core/OneLine.h"
#include "Core/TemperatureText.h"
#include "Core/WholeNumberText.h"

namespace kestrowind::FanReasonText {
namespace {

using Cause = FanReason::Cause;
using Movement = FanReason::Movement;

QString percent(double value) {
    return WholeNumberText::rounded(value);
}

QString temperatureStep(const FanReason& reason) {
    const QString measured = TemperatureText::precise(reason.measuredTemperature);
    if (!reason.isCoolingDown())
        return localized("reason.step.temperature").arg(measured);
    return localized("reason.step.coolingDown")
        .arg(measured, TemperatureText::precise(reason.temperature));
}

QString speedStep(const FanReason& reason) {
    const QString asked = WholeNumberText::rounded(reason.askedSpeed);
    const QString actual = WholeNumberText::truncated(reason.actualSpeed);
    if (!reason.appliedSpeed)
        return localized("reason.step.notApplied").arg(asked, actual);
    return localized("reason.step.speeds")
        .arg(asked, WholeNumberText::rounded(*reason.appliedSpeed), actual);
}

} // namespace

QString sentence(const FanReason& reason) {
    switch (reason.cause) {
    case Cause::noHelper:
    case Cause::automatic:
    case Cause::noDemand:
        return localized("reason.system");
    case Cause::waitingForControl:
        return localized("reason.waitingForControl");
    case Cause::notConfirmed:
        return localized("reason.notConfirmed");
    case Cause::curve:
        return localized("reason.curve")
            .arg(percent(reason.curvePercent), TemperatureText::whole(reason.temperature),
                 quotable(reason.preset.value_or(QString())));
    case Cause::quickBoost:
        return localized("reason.quickBoost").arg(percent(reason.boostPercent));
    case Cause::safetyFloor:
        return localized("reason.safetyFloor")
            .arg(TemperatureText::whole(reason.hottestTemperature));
    }
    Q_UNREACHABLE();
}

QStringList chain(const FanReason& reason) {
    switch (reason.cause) {
    case Cause::noHelper:
        return {localized("reason.step.noHelper")};
    case Cause::automatic:
        return {localized("reason.step.automatic")};
    default:
        break;
    }
    QStringList steps;
    if (reason.preset)
        steps << temperatureStep(reason)
              << localized("reason.step.curve")
                     .arg(quotable(*reason.preset), percent(reason.curvePercent));
    if (reason.boostPercent > 0)
        steps << localized(reason.boostPercent >= reason.curvePercent ? "reason.step.boost"
                                                                      : "reason.step.smallerBoost")
                     .arg(percent(reason.boostPercent));
    if (reason.cause == Cause::noDemand)
        return steps << localized("reason.step.noDemand");
    if (reason.cause == Cause::waitingForControl)
        steps << localized("reason.step.waitingForControl");
    if (reason.cause == Cause::notConfirmed)
        steps << localized("reason.step.notConfirmed");
    if (reason.cause == Cause::safetyFloor)
        steps << localized("reason.step.safetyFloor")
                     .arg(TemperatureText::whole(reason.hottestTemperature));
    steps << speedStep(reason);
    if (reason.movement == Movement::speedingUp)
        steps << localized("reason.step.speedingUp");
    if (reason.movement == Movement::slowingDown)
        steps << localized("reason.step.slowingDown");
    return steps;
}

} // namespace kestrowind::FanReasonText
