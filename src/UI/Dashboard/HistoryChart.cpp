#include "UI/Dashboard/HistoryChart.h"

#include "Core/AssignIfChanged.h"
#include "UI/Dashboard/LineChartPainter.h"

namespace kestrowind {

HistoryChart::HistoryChart(QQuickItem* parent)
    : PaintedItem(parent) {
    setAcceptHoverEvents(true);
    connect(this, &HistoryChart::lookChanged, this, &HistoryChart::refreshReadout);
}

void HistoryChart::paint(QPainter& painter) {
    LineChartPainter::paint(painter, m_chart, look());
}

void HistoryChart::hoverMoveEvent(QHoverEvent* event) {
    m_pointer = event->position().x();
    refreshReadout();
}

void HistoryChart::hoverLeaveEvent(QHoverEvent* /*event*/) {
    m_pointer.reset();
    refreshReadout();
}

LineChartPainter::Look HistoryChart::look() const {
    return {.size = size(), .scheme = colorScheme()};
}

void HistoryChart::refreshReadout() {
    if (assignIfChanged(m_readout, m_pointer ? ChartReadout::nearest(m_chart, look(), *m_pointer)
                                             : ChartReadout()))
        Q_EMIT readoutChanged();
}

} // namespace kestrowind
