#include "UI/DesignSystem/FanGlyph.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/FanBladesShape.h"

#include <QPainter>

namespace kestrowind {

FanGlyph::FanGlyph(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void FanGlyph::setSide(double side) {
    if (!assignIfChanged(m_side, side))
        return;
    setImplicitSize(side, side);
    Q_EMIT sideChanged();
}

void FanGlyph::setColor(const QColor& color) {
    if (!assignIfChanged(m_color, color))
        return;
    update();
    Q_EMIT colorChanged();
}

void FanGlyph::paint(QPainter* painter) {
    painter->fillPath(FanBladesShape::path(boundingRect()), m_color);
}

} // namespace kestrowind
