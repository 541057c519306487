#include "UI/CurveEditor/CurveMarks.h"

#include "Core/LocalizedText.h"
#include "Shared/HelperShared/FanTargets.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kestrowind {

namespace {

/// What a fan reports is not checked.
bool hasLimits(const std::optional<SMCFanReading>& fan) {
    return fan && std::abs(fan->minRPM) <= highestPlausibleRPM &&
           std::abs(fan->maxRPM) <= highestPlausibleRPM;
}

/// The speed of a fan with limits at a demand, grouped, since it stands beside smaller numbers; the
/// interface's other numbers are not.
QString estimatedSpeed(double percent, const SMCFanReading& fan) {
    const double range = std::max(fan.maxRPM - fan.minRPM, 0.0);
    const double estimate =
        range > 0 ? fan.minRPM + std::min(percent, FanCurve::highestPercent) / 100 * range
                  : fan.maxRPM;
    QLocale grouping;
    grouping.setNumberOptions(QLocale::DefaultNumberOptions);
    return grouping.toString(static_cast<qint64>(std::trunc(estimate)));
}

} // namespace

QString CurveCallout::textOf(const FanCurvePoint& point, const std::optional<SMCFanReading>& fan) {
    const double percent = std::round(point.percent);
    const QString temperatureText = QString::number(std::lround(point.tempC));
    const QString percentText = QString::number(std::lround(percent));
    if (!hasLimits(fan))
        return localized("curves.chart.callout.temperatureAndPercent")
            .arg(temperatureText, percentText);
    if (percent <= 0)
        return localized("curves.chart.callout.automaticSpeed").arg(temperatureText, percentText);
    return localized("curves.chart.callout.estimatedRPM")
        .arg(temperatureText, percentText, estimatedSpeed(percent, *fan));
}

QString CurveLiveMarker::operatingTextOf(double percent, const std::optional<SMCFanReading>& fan) {
    const QString percentText = QString::number(std::lround(percent));
    if (!hasLimits(fan) || std::lround(percent) <= 0)
        return localized("curves.chart.axisPercent").arg(percentText);
    return localized("curves.chart.operatingPoint").arg(percentText, estimatedSpeed(percent, *fan));
}

std::optional<double> CurveLiveMarker::actualPercent(const std::optional<SMCFanReading>& fan) {
    if (!hasLimits(fan) || !(fan->maxRPM > fan->minRPM) || !(fan->actualRPM > 0))
        return std::nullopt;
    const double percent = (fan->actualRPM - fan->minRPM) / (fan->maxRPM - fan->minRPM) * 100;
    return std::clamp(percent, 0.0, FanCurve::highestPercent);
}

} // namespace kestrowind
