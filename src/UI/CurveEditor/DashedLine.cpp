#include "UI/CurveEditor/DashedLine.h"

#include "Core/AssignIfChanged.h"

#include <QPainter>

namespace kestrowind {

void DashedLine::setColor(const QColor& color) {
    if (!assignIfChanged(m_color, color))
        return;
    update();
    Q_EMIT colorChanged();
}

void DashedLine::paint(QPainter* painter) {
    QPen pen(m_color, width(), Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({4 / width(), 4 / width()});
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->drawLine(QPointF(width() / 2, 0), QPointF(width() / 2, height()));
}

} // namespace kestrowind
