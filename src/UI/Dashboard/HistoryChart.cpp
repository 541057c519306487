#include "UI/Dashboard/HistoryChart.h"

#include "Core/AssignIfChanged.h"
#include "UI/Dashboard/LineChartPainter.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>

namespace kestrowind {

void HistoryChart::setChart(const LineChart& chart) {
    if (!assignIfChanged(m_chart, chart))
        return;
    update();
    Q_EMIT chartChanged();
}

void HistoryChart::paint(QPainter* painter) {
    LineChartPainter::paint(
        *painter, m_chart,
        {.size = size(), .scheme = SceneAppearance::of(*qmlEngine(this)).colorScheme()});
}

void HistoryChart::componentComplete() {
    QQuickPaintedItem::componentComplete();
    connect(&SceneAppearance::of(*qmlEngine(this)), &SceneAppearance::colorSchemeChanged, this,
            [this] { update(); });
}

} // namespace kestrowind
