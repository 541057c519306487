#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"
#include "UI/DesignSystem/PaintedItem.h"

#include <QPointer>

namespace kestrowind {

/// What happens whatever the curve says, over the plot: below the helper's safety floor as a shaded
/// region, below the quick boost as a dashed level. A curve under either is not what the fans do.
class DemandFloors : public kestrowind::PaintedItem {
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
    void paintSafetyFloor(QPainter& painter) const;
    void paintBoost(QPainter& painter) const;

    QPointer<FanCurveChartModel> m_chart;
};

} // namespace kestrowind
