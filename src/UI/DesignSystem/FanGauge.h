#pragma once

#include "Platform/SystemAppearance.h"

#include <QGradient>
#include <QPainterPath>
#include <QRectF>

class QPainter;

/// The picture of the gauge as pure functions. The ring lies in a rectangle that is the gauge's own
/// enlarged by the line's width on every side, so that round caps and ticks are not cut off.
namespace kestrowind::FanGauge {

struct Look {
    double diameter = 0;
    double lineWidth = 0;
    double gapDegrees = 0; ///< the opening, centred at the bottom
    ColorScheme scheme = ColorScheme::light;

    bool operator==(const Look&) const = default;
};

[[nodiscard]] QRectF enlargedBounds(const Look& look);
/// Clockwise from the left end of the opening; `fraction` 1 is the whole ring, 0 is empty.
[[nodiscard]] QPainterPath ringPath(const Look& look, double fraction);
/// Three radial strokes at a quarter, half and three quarters of the ring.
[[nodiscard]] QPainterPath tickPath(const Look& look);
[[nodiscard]] double tickWidth(const Look& look);

[[nodiscard]] QGradientStops trackStops(ColorScheme scheme);
[[nodiscard]] QColor tickColor(ColorScheme scheme);

/// Paints track, fill and ticks in the coordinates of the gauge's own rectangle.
void paint(QPainter& painter, const Look& look, double fraction);

} // namespace kestrowind::FanGauge
