#include "UI/Presets/GradientDisc.h"

#include <QLinearGradient>
#include <QPainter>

namespace kestrowind {

void GradientDisc::paint(QPainter& painter) {
    QLinearGradient colors(0, 0, 0, height());
    colors.setStops({{0, m_topColor}, {1, m_bottomColor}});
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors);
    painter.drawEllipse(boundingRect());
}

} // namespace kestrowind
