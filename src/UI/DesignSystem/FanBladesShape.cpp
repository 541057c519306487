#include "UI/DesignSystem/FanBladesShape.h"

#include <QTransform>

#include <algorithm>

namespace kestrowind::FanBladesShape {
namespace {

constexpr double hubRadius = 11;

/// One blade in units of a hundredth of the fan's side, around the hub at the origin, y downwards.
QPainterPath blade() {
    QPainterPath outline({-7, -12});
    outline.cubicTo({-16, -28}, {-2, -46}, {13, -44});
    outline.cubicTo({20, -43}, {22, -37}, {19, -30});
    outline.cubicTo({15, -20}, {20, -9}, {12, -4});
    outline.cubicTo({4, 0}, {-4, -4}, {-7, -12});
    outline.closeSubpath();
    return outline;
}

} // namespace

QPainterPath path(const QRectF& rectangle) {
    const double unit = std::min(rectangle.width(), rectangle.height()) / 100;
    const auto placed =
        QTransform::fromTranslate(rectangle.center().x(), rectangle.center().y()).scale(unit, unit);

    QPainterPath fan;
    fan.setFillRule(Qt::WindingFill);
    for (const double angle : {0.0, 120.0, 240.0})
        fan.addPath(QTransform(placed).rotate(angle).map(blade()));
    fan.addEllipse(rectangle.center(), hubRadius * unit, hubRadius * unit);
    return fan;
}

} // namespace kestrowind::FanBladesShape
