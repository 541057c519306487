#include "Core/FanCurve.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kestrowind {
namespace {

void sortByTemperature(QList<FanCurvePoint>& points) {
    std::ranges::stable_sort(points, {}, &FanCurvePoint::tempC);
}

} // namespace

FanCurve::FanCurve(QList<FanCurvePoint> points)
    : m_points(std::move(points)) {
    sortByTemperature(m_points);
}

FanCurve FanCurve::fromStoredPoints(QList<FanCurvePoint> points) {
    FanCurve curve;
    curve.m_points = std::move(points);
    return curve;
}

double FanCurve::percent(double temperature) const {
    if (m_points.isEmpty() || temperature < m_points.first().tempC)
        return 0;
    if (temperature >= m_points.last().tempC)
        return m_points.last().percent;
    const auto upper = std::find_if(
        std::next(m_points.begin()), m_points.end(),
        [temperature](const FanCurvePoint& point) { return point.tempC > temperature; });
    // Only a temperature that is not a number finds nothing above it.
    if (upper == m_points.end())
        return m_points.last().percent;
    const FanCurvePoint& lower = *std::prev(upper);
    return lower.percent + (upper->percent - lower.percent) * (temperature - lower.tempC) /
                               (upper->tempC - lower.tempC);
}

bool FanCurve::hasRoomAt(double temperature) const {
    return std::ranges::none_of(m_points, [temperature](const FanCurvePoint& point) {
        return std::abs(point.tempC - temperature) < addedPointDistance;
    });
}

void FanCurve::insert(FanCurvePoint point) {
    point.tempC = std::clamp(point.tempC, lowestTemperature, highestTemperature);
    point.percent = std::clamp(point.percent, 0.0, highestPercent);
    m_points.append(point);
    sortByTemperature(m_points);
}

void FanCurve::move(qsizetype index, const FanCurvePoint& to) {
    if (index < 0 || index >= m_points.size())
        return;
    const double lower =
        index == 0 ? lowestTemperature : m_points.at(index - 1).tempC + movedPointDistance;
    const double upper = index == m_points.size() - 1
                             ? highestTemperature
                             : m_points.at(index + 1).tempC - movedPointDistance;
    if (lower > upper)
        return;
    m_points[index] = {std::min(upper, std::max(lower, to.tempC)), to.percent};
}

void FanCurve::remove(qsizetype index) {
    m_points.removeAt(index);
}

size_t qHash(const FanCurvePoint& point, size_t seed) noexcept {
    return qHashMulti(seed, point.tempC, point.percent);
}

size_t qHash(const FanCurve& curve, size_t seed) noexcept {
    return qHashRange(curve.points().begin(), curve.points().end(), seed);
}

} // namespace kestrowind
