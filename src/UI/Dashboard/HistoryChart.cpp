#include "UI/Dashboard/HistoryChart.h"

#include "Core/AssignIfChanged.h"
#include "UI/Dashboard/LineChartPainter.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>

namespace kestrowind {

HistoryChart::HistoryChart(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAcceptHoverEvents(true);
}

void HistoryChart::setChart(const LineChart& chart) {
    if (!assignIfChanged(m_chart, chart))
        return;
    update();
    refreshReadout();
    Q_EMIT chartChanged();
}

void HistoryChart::paint(QPainter* painter) {
    LineChartPainter::paint(*painter, m_chart, look());
}

void HistoryChart::componentComplete() {
    QQuickPaintedItem::componentComplete();
    connect(&SceneAppearance::of(*qmlEngine(this)), &SceneAppearance::colorSchemeChanged, this,
            [this] { update(); });
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
    return {.size = size(), .scheme = SceneAppearance::of(*qmlEngine(this)).colorScheme()};
}

void HistoryChart::refreshReadout() {
    if (assignIfChanged(m_readout, m_pointer ? ChartReadout::nearest(m_chart, look(), *m_pointer)
                                             : ChartReadout()))
        Q_EMIT readoutChanged();
}

} // namespace kestrowind
