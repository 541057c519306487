#include "UI/CurveEditor/CurveOutline.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kestrowind::CurveOutline {
namespace {

bool isAscending(const QPolygonF& outline) {
    return std::ranges::is_sorted(outline, {}, &QPointF::x);
}

double interpolated(const QPointF& lower, const QPointF& upper, double x) {
    return lower.y() + (upper.y() - lower.y()) * (x - lower.x()) / (upper.x() - lower.x());
}

/// What the outline comes to at x from the left.
double leftLimit(const QPolygonF& outline, double x) {
    const auto upper = std::ranges::lower_bound(outline, x, {}, &QPointF::x);
    if (upper == outline.end())
        return outline.last().y();
    if (upper == outline.begin() || upper->x() <= x)
        return upper->y();
    return interpolated(*std::prev(upper), *upper, x);
}

/// What the outline goes on from at x to the right.
double rightLimit(const QPolygonF& outline, double x) {
    const auto upper = std::ranges::upper_bound(outline, x, {}, &QPointF::x);
    if (upper == outline.begin())
        return outline.first().y();
    const auto lower = std::prev(upper);
    if (upper == outline.end() || lower->x() >= x)
        return lower->y();
    return interpolated(*lower, *upper, x);
}

} // namespace

QPolygonF of(const FanCurve& curve) {
    const QList<FanCurvePoint>& points = curve.points();
    if (points.isEmpty())
        return {};
    QPolygonF outline;
    outline << QPointF(FanCurve::lowestTemperature, 0) << QPointF(points.first().tempC, 0);
    for (const FanCurvePoint& point : points)
        outline << QPointF(point.tempC, point.percent);
    return outline << QPointF(FanCurve::highestTemperature, points.last().percent);
}

QPolygonF blended(const QPolygonF& from, const QPolygonF& to, double progress) {
    QPolygonF blend;
    if (from.size() == to.size()) {
        for (qsizetype i = 0; i < to.size(); ++i)
            blend << from[i] + (to[i] - from[i]) * progress;
        return blend;
    }
    // Points of a stored curve may be out of order: such a line is no function.
    if (from.isEmpty() || to.isEmpty() || !isAscending(from) || !isAscending(to))
        return to;
    QList<double> places;
    for (const QPointF& vertex : from + to)
        places.append(vertex.x());
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    for (const double x : places) {
        blend << QPointF(x, std::lerp(leftLimit(from, x), leftLimit(to, x), progress))
              << QPointF(x, std::lerp(rightLimit(from, x), rightLimit(to, x), progress));
    }
    return blend;
}

} // namespace kestrowind::CurveOutline
