#include "UI/CurveEditor/DashedLine.h"

#include <QPainter>

namespace kestrowind {

void DashedLine::paint(QPainter& painter) {
    QPen pen(m_color, width(), Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({4 / width(), 4 / width()});
    painter.setPen(pen);
    painter.drawLine(QPointF(width() / 2, 0), QPointF(width() / 2, height()));
}

} // namespace kestrowind
