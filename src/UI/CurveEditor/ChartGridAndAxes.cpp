#include "UI/CurveEditor/ChartGridAndAxes.h"

#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "UI/DesignSystem/Typography.h"

#include <QPainter>

#include <cmath>

namespace kestrowind {
namespace {

constexpr double labelsBelow = 6; ///< from the plot's bottom edge to the labels' top
constexpr double labelsLeft = 8;  ///< from the labels' right end to the plot

/// In the middle of a device pixel, so that a one-point line is sharp.
double sharp(double coordinate) {
    return std::floor(coordinate) + 0.5;
}

} // namespace

void ChartGridAndAxes::setChart(FanCurveChartModel* chart) {
    if (!assignIfChanged(m_chart, chart))
        return;
    connect(chart, &FanCurveChartModel::plotChanged, this, &ChartGridAndAxes::repaint);
    Q_EMIT lookChanged();
}

void ChartGridAndAxes::paint(QPainter& painter) {
    if (!m_chart || m_chart->plot().isEmpty())
        return;
    const QPen faint(colors().separator, 1);
    const QPen base(colors().tertiaryText, 1);
    const QRectF plot = m_chart->plot();
    const CurvePlotGeometry geometry = m_chart->geometry();

    painter.setFont(Typography::caption2());
    for (const int tick : CurvePlotGeometry::temperatureTicks(plot.width())) {
        const double x = plot.left() + geometry.x(tick);
        painter.setPen(faint);
        painter.drawLine(QPointF(sharp(x), plot.top()), QPointF(sharp(x), plot.bottom()));
        painter.setPen(base);
        painter.drawText(QRectF(x - 40, plot.bottom() + labelsBelow, 80, 40),
                         Qt::AlignHCenter | Qt::AlignTop,
                         localized("curves.chart.axisDegrees").arg(tick));
    }
    for (const int tick : CurvePlotGeometry::percentTicks()) {
        const double y = plot.top() + geometry.y(tick);
        painter.setPen(tick == 0 ? base : faint);
        painter.setOpacity(tick == 0 ? 0.6 : 1);
        painter.drawLine(QPointF(plot.left(), sharp(y)), QPointF(plot.right(), sharp(y)));
        painter.setOpacity(1);
        painter.setPen(base);
        painter.drawText(QRectF(0, y - 20, plot.left() - labelsLeft, 40),
                         Qt::AlignRight | Qt::AlignVCenter,
                         localized("curves.chart.axisPercent").arg(tick));
    }
}

} // namespace kestrowind
