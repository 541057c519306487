#include "UI/CurveEditor/DemandFloors.h"

#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "Shared/HelperShared/HelperSafetyFloor.h"
#include "UI/DesignSystem/Typography.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace kestrowind {
namespace {

constexpr double labelInset = 6; ///< of a label from what it belongs to, points

/// Its values in whole degrees, which hit each of its corners.
QPolygonF safetyFloorLine() {
    QPolygonF line;
    for (double celsius = FanCurve::lowestTemperature; celsius <= FanCurve::highestTemperature;
         ++celsius)
        line.append({celsius, HelperSafetyFloor::floorPercent(celsius)});
    return line;
}

} // namespace

void DemandFloors::setChart(FanCurveChartModel* chart) {
    if (!assignIfChanged(m_chart, chart))
        return;
    connect(chart, &FanCurveChartModel::plotChanged, this, &DemandFloors::repaint);
    connect(chart, &FanCurveChartModel::boostPercentChanged, this, &DemandFloors::repaint);
    Q_EMIT lookChanged();
}

void DemandFloors::paint(QPainter& painter) {
    if (!m_chart || m_chart->plot().isEmpty())
        return;
    painter.setFont(Typography::caption2());
    paintSafetyFloor(painter);
    if (m_chart->boostPercent() > 0)
        paintBoost(painter);
}

void DemandFloors::paintSafetyFloor(QPainter& painter) const {
    const CurvePlotGeometry geometry = m_chart->geometry();
    const QPolygonF line = geometry.line(safetyFloorLine());
    QColor shade = colors().danger;
    shade.setAlphaF(0.07F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawPolygon(geometry.area(line));
    shade.setAlphaF(0.35F);
    painter.setPen(QPen(shade, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);

    const QString label = localized("curves.chart.safetyFloor");
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(label);
    painter.setPen(colors().tertiaryText);
    painter.drawText(QPointF(geometry.plotSize.width() - labelInset - width,
                             geometry.plotSize.height() - labelInset),
                     label);
}

void DemandFloors::paintBoost(QPainter& painter) const {
    const CurvePlotGeometry geometry = m_chart->geometry();
    const double y = std::floor(geometry.y(m_chart->boostPercent())) + 0.5;
    QPen pen(colors().accent, 1);
    pen.setDashPattern({5, 4});
    painter.setPen(pen);
    painter.drawLine(QPointF(0, y), QPointF(geometry.plotSize.width(), y));
    // Above the line, or below it where there is no room above.
    const QFontMetricsF metrics(painter.font());
    const double above = y - labelInset / 2;
    const double baseline =
        above > metrics.ascent() ? above : y + metrics.ascent() + labelInset / 2;
    painter.setPen(colors().accent);
    painter.drawText(
        QPointF(labelInset, baseline),
        localized("curves.chart.boost").arg(WholeNumberText::rounded(m_chart->boostPercent())));
}

} // namespace kestrowind
