#include "UI/CurveEditor/CurveMarks.h"

#include "Core/LocalizedText.h"
#include "Shared/HelperShared/FanTargets.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kestrowind {

QString CurveCallout::textOf(const FanCurvePoint& point, const std::optional<SMCFanReading>& fan) {
    const double percent = std::round(point.percent);
    const QString temperatureText = QString::number(std::lround(point.tempC));
    const QString percentText = QString::number(std::lround(percent));
    // What a fan reports is not checked.
    const bool hasLimits = fan && std::abs(fan->minRPM) <= highestPlausibleRPM &&
                           std::abs(fan->maxRPM) <= highestPlausibleRPM;
    if (!hasLimits)
        return localized("curves.chart.callout.temperatureAndPercent")
            .arg(temperatureText, percentText);
    if (percent <= 0)
        return localized("curves.chart.callout.automaticSpeed").arg(temperatureText, percentText);
    const double range = std::max(fan->maxRPM - fan->minRPM, 0.0);
    const double estimate =
        range > 0 ? fan->minRPM + std::min(percent, FanCurve::highestPercent) / 100 * range
                  : fan->maxRPM;
    // Grouped, beside two smaller numbers; the interface's other numbers are not.
    QLocale grouping;
    grouping.setNumberOptions(QLocale::DefaultNumberOptions);
    return localized("curves.chart.callout.estimatedRPM")
        .arg(temperatureText, percentText,
             grouping.toString(static_cast<qint64>(std::trunc(estimate))));
}

} // namespace kestrowind
