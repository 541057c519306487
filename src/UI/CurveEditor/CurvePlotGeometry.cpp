#include "UI/CurveEditor/CurvePlotGeometry.h"

#include <QLineF>
#include <QMarginsF>

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

constexpr QMarginsF plotInsets(46, 18, 18, 26); // left, top, right, bottom

constexpr double lowest = FanCurve::lowestTemperature;
constexpr double temperatureSpan = FanCurve::highestTemperature - lowest;

constexpr int tickStep = 10;
constexpr int crowdedTickStep = 30;
constexpr double leastTickDistance = 34;
constexpr int percentTickStep = 25;

} // namespace

QRectF CurvePlotGeometry::plotIn(const QSizeF& chartSize) {
    const QSizeF size = chartSize.shrunkBy(plotInsets).expandedTo({0, 0});
    return {{plotInsets.left(), plotInsets.top()}, size};
}

double CurvePlotGeometry::x(double temperature) const {
    return (temperature - lowest) / temperatureSpan * plotSize.width();
}

double CurvePlotGeometry::y(double percent) const {
    return (1 - percent / FanCurve::highestPercent) * plotSize.height();
}

QPointF CurvePlotGeometry::position(const FanCurvePoint& point) const {
    return {std::clamp(x(point.tempC), 0.0, plotSize.width()),
            std::clamp(y(point.percent), 0.0, plotSize.height())};
}

FanCurvePoint CurvePlotGeometry::value(const QPointF& position) const {
    const double temperature =
        plotSize.width() > 0 ? lowest + position.x() / plotSize.width() * temperatureSpan : lowest;
    const double percent = plotSize.height() > 0
                               ? (1 - position.y() / plotSize.height()) * FanCurve::highestPercent
                               : 0;
    return {.tempC = std::round(std::clamp(temperature, lowest, FanCurve::highestTemperature)),
            .percent = std::round(std::clamp(percent, 0.0, FanCurve::highestPercent))};
}

int CurvePlotGeometry::pointAt(const QPointF& position) const {
    int nearest = -1;
    double shortest = hitRadius;
    for (int index = 0; index < points.size(); ++index) {
        const double distance = QLineF(position, this->position(points[index])).length();
        if (distance < shortest || (nearest < 0 && distance <= shortest)) {
            nearest = index;
            shortest = distance;
        }
    }
    return nearest;
}

std::optional<CurvePlotGeometry::Candidate>
CurvePlotGeometry::candidateAt(const QPointF& position) const {
    const FanCurvePoint added = value(position);
    const QPointF snapped = this->position(added);
    if (pointAt(snapped) >= 0 || !FanCurve::fromStoredPoints(points).hasRoomAt(added.tempC))
        return std::nullopt;
    return Candidate{.position = snapped, .point = added};
}

QPolygonF CurvePlotGeometry::line(const QPolygonF& outline) const {
    QPolygonF line;
    line.reserve(outline.size());
    for (const QPointF& vertex : outline)
        line.append({x(vertex.x()), y(vertex.y())});
    return line;
}

QPolygonF CurvePlotGeometry::area(const QPolygonF& line) const {
    if (line.isEmpty())
        return {};
    QPolygonF area = line;
    area << QPointF(plotSize.width(), plotSize.height()) << QPointF(0, plotSize.height());
    return area;
}

QList<int> CurvePlotGeometry::temperatureTicks(double plotWidth) {
    const int step =
        plotWidth / (temperatureSpan / tickStep) < leastTickDistance ? crowdedTickStep : tickStep;
    QList<int> ticks;
    for (int tick = static_cast<int>(lowest); tick <= FanCurve::highestTemperature; tick += step)
        ticks.append(tick);
    return ticks;
}

QList<int> CurvePlotGeometry::percentTicks() {
    QList<int> ticks;
    for (int tick = 0; tick <= FanCurve::highestPercent; tick += percentTickStep)
        ticks.append(tick);
    return ticks;
}

} // namespace kestrowind
