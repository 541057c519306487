#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"

#include <QPointer>
#include <QQuickPaintedItem>

namespace kestrowind {

/// Grid lines and their labels, over the whole chart. Painted anew only for another size or colour
/// scheme.
class ChartGridAndAxes : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FanCurveChartModel* chart READ chart WRITE setChart NOTIFY chartChanged
                   FINAL REQUIRED)
    QML_ELEMENT

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    [[nodiscard]] FanCurveChartModel* chart() const { return m_chart; }
    void setChart(FanCurveChartModel* chart);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void chartChanged();

protected:
    void componentComplete() override;

private:
    QPointer<FanCurveChartModel> m_chart;
};

} // namespace kestrowind
