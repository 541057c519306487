#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"
#include "UI/DesignSystem/PaintedItem.h"

#include <QPointer>
#include <QPolygonF>
#include <QVariantAnimation>

namespace kestrowind {

/// The curve's line and the area under it, exactly as the curve is evaluated. Lies over the plot
/// and `bleed` points beyond it on every side. A change that is to be seen moving springs; one that
/// comes in the middle of another starts from where the line is.
class CurveShape : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FanCurveChartModel* chart READ chart WRITE setChart NOTIFY lookChanged
                   FINAL REQUIRED)
    Q_PROPERTY(double bleed READ bleed CONSTANT FINAL)
    QML_ELEMENT

public:
    explicit CurveShape(QQuickItem* parent = nullptr);

    [[nodiscard]] FanCurveChartModel* chart() const { return m_chart; }
    void setChart(FanCurveChartModel* chart);
    /// Room for a line on the plot's edge, points.
    [[nodiscard]] static double bleed() { return 3; }
    /// What is drawn now, in values.
    [[nodiscard]] const QPolygonF& outline() const { return m_outline; }

protected:
    void paint(QPainter& painter) override;

private:
    void takeCurve();
    void setOutline(const QPolygonF& outline);

    QPointer<FanCurveChartModel> m_chart;
    QPolygonF m_outline;
    QPolygonF m_start; ///< of the running movement
    QPolygonF m_end;
    QVariantAnimation m_movement;
};

} // namespace kestrowind
