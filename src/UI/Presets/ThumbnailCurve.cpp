#include "UI/Presets/ThumbnailCurve.h"

#include <algorithm>

namespace kestrowind {
namespace {

/// Above 100 and below 0 percent, in parts of the height.
constexpr double inset = 0.16;

} // namespace

QPolygonF ThumbnailCurve::line(const QSizeF& size) const {
    constexpr double lowest = FanCurve::lowestTemperature;
    constexpr double range = FanCurve::highestTemperature - lowest;
    const double usable = std::max(size.height() * (1 - 2 * inset), 0.0);
    QPolygonF points;
    for (int i = 0; i < sampleCount; ++i) {
        const double part = static_cast<double>(i) / (sampleCount - 1);
        const double percent = curve.percent(lowest + range * part);
        points.append({part * size.width(), inset * size.height() + usable * (1 - percent / 100)});
    }
    return points;
}

} // namespace kestrowind
