#include "UI/Presets/MiniCurveThumbnail.h"

#include <QPainter>

#include <algorithm>

namespace kestrowind {
namespace {

constexpr double lineWidth = 2;

} // namespace

void MiniCurveThumbnail::paint(QPainter& painter) {
    QPolygonF line = m_curve.line(size());
    // A stored curve may ask for any percent: what lies far outside is not seen anyway, and numbers
    // that large are more than the painter can bear.
    for (QPointF& point : line)
        point.setY(std::clamp(point.y(), -2 * height(), 3 * height()));

    QPolygonF area = line;
    area << QPointF(width(), height()) << QPointF(0, height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_areaColor);
    painter.drawPolygon(area);

    painter.setPen(QPen(m_lineColor, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
}

} // namespace kestrowind
