#include "UI/Presets/CardOutline.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace kestrowind {

void CardOutline::paint(QPainter& painter) {
    QLinearGradient colors(0, 0, 0, height());
    colors.setStops({{0, m_topColor}, {1, m_bottomColor.isValid() ? m_bottomColor : m_topColor}});
    QPen pen(colors, m_lineWidth);
    if (!m_dashes.isEmpty()) {
        // The painter counts in line widths.
        QList<double> pattern;
        for (const double points : m_dashes)
            pattern.append(points / m_lineWidth);
        pen.setDashPattern(pattern);
        pen.setCapStyle(Qt::FlatCap);
    }
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    // A pen is centred on its path.
    const double halfLine = m_lineWidth / 2;
    const double radius = std::max(m_cornerRadius - halfLine, 0.0);
    painter.drawRoundedRect(boundingRect().adjusted(halfLine, halfLine, -halfLine, -halfLine),
                            radius, radius);
}

} // namespace kestrowind
