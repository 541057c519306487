#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"
#include "UI/DesignSystem/PaintedItem.h"

#include <QPointer>

namespace kestrowind {

/// Grid lines and their labels, over the whole chart.
class ChartGridAndAxes : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FanCurveChartModel* chart READ chart WRITE setChart NOTIFY lookChanged
                   FINAL REQUIRED)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

    [[nodiscard]] FanCurveChartModel* chart() const { return m_chart; }
    void setChart(FanCurveChartModel* chart);

protected:
    void paint(QPainter& painter) override;

private:
    QPointer<FanCurveChartModel> m_chart;
};

} // namespace kestrowind
