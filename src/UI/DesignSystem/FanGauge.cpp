#include "UI/DesignSystem/FanGauge.h"

#include "UI/DesignSystem/Palette.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace kestrowind::FanGauge {
namespace {

/// How far a tick reaches inwards and outwards from the ring's middle line, in points.
constexpr double tickReach = 6.5;

/// Angles in degrees as painter paths have them: 0 at three o'clock, counter-clockwise.
double startAngle(const Look& look) {
    return -90 - look.gapDegrees / 2;
}

double sweep(const Look& look) {
    return 360 - look.gapDegrees;
}

double radius(const Look& look) {
    const QRectF bounds = enlargedBounds(look);
    return (std::min(bounds.width(), bounds.height()) - 2 * look.lineWidth) / 2;
}

QPointF onCircle(const QPointF& center, double distance, double degrees) {
    const double radians = degrees * std::numbers::pi / 180;
    return center + QPointF(std::cos(radians), -std::sin(radians)) * distance;
}

QLinearGradient across(const QRectF& bounds, const QPointF& from, const QPointF& to,
                       const QGradientStops& stops) {
    const auto place = [&bounds](const QPointF& unit) {
        return bounds.topLeft() + QPointF(unit.x() * bounds.width(), unit.y() * bounds.height());
    };
    QLinearGradient gradient(place(from), place(to));
    gradient.setStops(stops);
    return gradient;
}

} // namespace

QRectF enlargedBounds(const Look& look) {
    return QRectF(0, 0, look.diameter, look.diameter)
        .adjusted(-look.lineWidth, -look.lineWidth, look.lineWidth, look.lineWidth);
}

QPainterPath ringPath(const Look& look, double fraction) {
    if (fraction <= 0)
        return {};
    const double r = radius(look);
    const QPointF center = enlargedBounds(look).center();
    const QRectF circle(center.x() - r, center.y() - r, 2 * r, 2 * r);
    QPainterPath path;
    path.arcMoveTo(circle, startAngle(look));
    path.arcTo(circle, startAngle(look), -sweep(look) * fraction);
    return path;
}

QPainterPath tickPath(const Look& look) {
    const double r = radius(look);
    const QPointF center = enlargedBounds(look).center();
    QPainterPath path;
    for (const double fraction : {0.25, 0.5, 0.75}) {
        const double angle = startAngle(look) - sweep(look) * fraction;
        path.moveTo(onCircle(center, r - tickReach, angle));
        path.lineTo(onCircle(center, r + tickReach, angle));
    }
    return path;
}

double tickWidth(const Look& look) {
    return look.diameter * 0.5 * 0.006 * std::numbers::pi;
}

QGradientStops trackStops(ColorScheme scheme) {
    QColor strong = scheme == ColorScheme::dark ? Qt::white : Qt::black;
    QColor faint = strong;
    strong.setAlphaF(0.16f);
    faint.setAlphaF(0.07f);
    return {{0.0, strong}, {1.0, faint}};
}

QColor tickColor(ColorScheme scheme) {
    QColor color = scheme == ColorScheme::dark ? Qt::white : Qt::black;
    color.setAlphaF(0.35f);
    return color;
}

void paint(QPainter& painter, const Look& look, double fraction) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = enlargedBounds(look);
    const auto stroke = [&](const QPainterPath& path, const QBrush& brush) {
        painter.strokePath(path, QPen(brush, look.lineWidth, Qt::SolidLine, Qt::RoundCap));
    };
    stroke(ringPath(look, 1), across(bounds, {0.5, 1}, {0.5, 0}, trackStops(look.scheme)));
    stroke(ringPath(look, fraction), across(bounds, {1, 1}, {0, 0}, Palette::fanGradientStops()));
    painter.strokePath(tickPath(look),
                       QPen(tickColor(look.scheme), tickWidth(look), Qt::SolidLine, Qt::FlatCap));
}

} // namespace kestrowind::FanGauge
