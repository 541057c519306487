#pragma once

#include "Core/FanCurve.h"

#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <optional>

namespace kestrowind {

/// Where the values of a curve are in its plot, and back: the only mapping between the two.
/// Positions are in points from the plot's upper left corner.
struct CurvePlotGeometry {
    /// From a point's centre, in points: nearer than this, a press is meant for the point.
    static constexpr double hitRadius = 22;

    /// A place where a click would add a point.
    struct Candidate {
        QPointF position;    ///< of the whole degree and percent
        FanCurvePoint point; ///< whole degrees and percent
        bool operator==(const Candidate&) const = default;
    };

    QSizeF plotSize;
    QList<FanCurvePoint> points;

    /// The plot inside its chart; the labels of the axes stand around it.
    [[nodiscard]] static QRectF plotIn(const QSizeF& chartSize);

    [[nodiscard]] double x(double temperature) const;
    [[nodiscard]] double y(double percent) const;
    /// Of the point's handle. Stored points may lie outside of the axes: such a one is at the
    /// plot's edge.
    [[nodiscard]] QPointF position(const FanCurvePoint& point) const;
    /// The nearest whole degree and percent inside the axes, wherever the position is.
    [[nodiscard]] FanCurvePoint value(const QPointF& position) const;

    /// The index of the nearest point within hitRadius; -1 when there is none.
    [[nodiscard]] int pointAt(const QPointF& position) const;
    /// Absent where a point would be too close to another, in the plot or in temperature.
    [[nodiscard]] std::optional<Candidate> candidateAt(const QPointF& position) const;

    /// An outline of values (CurveOutline) as it is drawn.
    [[nodiscard]] QPolygonF line(const QPolygonF& outline) const;
    /// What lies under such a line.
    [[nodiscard]] QPolygonF area(const QPolygonF& line) const;

    /// Temperatures of the vertical grid lines: every 10 degrees, or 30 where those are crowded.
    [[nodiscard]] static QList<int> temperatureTicks(double plotWidth);
    /// Percents of the horizontal grid lines.
    [[nodiscard]] static QList<int> percentTicks();
};

} // namespace kestrowind
