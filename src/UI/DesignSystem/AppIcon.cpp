#include "UI/DesignSystem/AppIcon.h"

#include "UI/DesignSystem/FanBladesShape.h"
#include "UI/DesignSystem/Palette.h"

#include <QLinearGradient>
#include <QPainter>

namespace kestrowind {
namespace {

// Of the side.
constexpr double cornerRadius = 0.225;
constexpr double bladesMargin = 0.1;

/// Layers of black that add up to 20 % next to the icon and thin out around it.
void paintShadow(QPainter& painter, const QRectF& square) {
    constexpr int layers = 10;
    constexpr double opacity = 0.2;
    constexpr double offset = 0.05;
    constexpr double blur = 0.2;
    const double side = square.width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity / layers)));
    for (int layer = 0; layer < layers; ++layer) {
        const double spread = side * blur * layer / layers;
        const double radius = side * cornerRadius + spread;
        painter.drawRoundedRect(
            square.adjusted(-spread, -spread, spread, spread).translated(0, side * offset), radius,
            radius);
    }
}

} // namespace

void AppIcon::paint(QPainter& painter) {
    QRectF square(0, 0, m_side, m_side);
    square.moveCenter(boundingRect().center());
    paintShadow(painter, square);

    QLinearGradient air(square.topLeft(), square.bottomRight());
    air.setStops(Palette::fanGradientStops());
    painter.setBrush(air);
    const double radius = m_side * cornerRadius;
    painter.drawRoundedRect(square, radius, radius);
    const double margin = m_side * bladesMargin;
    painter.fillPath(FanBladesShape::path(square.adjusted(margin, margin, -margin, -margin)),
                     Qt::white);
}

} // namespace kestrowind
