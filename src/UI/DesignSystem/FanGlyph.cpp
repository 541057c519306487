#include "UI/DesignSystem/FanGlyph.h"

#include "UI/DesignSystem/FanBladesShape.h"

#include <QPainter>

namespace kestrowind {

FanGlyph::FanGlyph(QQuickItem* parent)
    : PaintedItem(parent) {
    connect(this, &FanGlyph::lookChanged, this, [this] { setImplicitSize(m_side, m_side); });
}

void FanGlyph::paint(QPainter& painter) {
    painter.fillPath(FanBladesShape::path(boundingRect()), m_color);
}

} // namespace kestrowind
