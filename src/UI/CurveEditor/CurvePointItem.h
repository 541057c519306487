#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"

#include <QPointer>
#include <QQuickItem>

namespace kestrowind {

/// One point of the curve: where the keyboard works on it, and to assistive technology a number in
/// percent that can be set. Pointers are the gesture area's.
class CurvePointItem : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FanCurveChartModel* chart READ chart WRITE setChart NOTIFY chartChanged
                   FINAL REQUIRED)
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY indexChanged FINAL REQUIRED)
    Q_PROPERTY(kestrowind::CurvePointRow row READ row WRITE setRow NOTIFY rowChanged FINAL REQUIRED)
    // The names by which the toolkit reads and sets a number.
    Q_PROPERTY(double value READ value WRITE requestValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(double minimumValue READ minimumValue CONSTANT FINAL)
    Q_PROPERTY(double maximumValue READ maximumValue CONSTANT FINAL)
    Q_PROPERTY(double stepSize READ stepSize CONSTANT FINAL)
    // As controls have it: whoever borrows the keyboard gives it back for the same reason.
    Q_PROPERTY(Qt::FocusReason focusReason READ focusReason FINAL)
    QML_ELEMENT

public:
    using QQuickItem::QQuickItem;

    [[nodiscard]] FanCurveChartModel* chart() const { return m_chart; }
    void setChart(FanCurveChartModel* chart);
    [[nodiscard]] int index() const { return m_index; }
    void setIndex(int index);
    [[nodiscard]] const CurvePointRow& row() const { return m_row; }
    void setRow(const CurvePointRow& row);
    [[nodiscard]] double value() const { return m_row.percent; }
    /// Asks the chart to move the point to that percent.
    void requestValue(double percent);
    [[nodiscard]] static double minimumValue() { return 0; }
    [[nodiscard]] static double maximumValue() { return FanCurve::highestPercent; }
    [[nodiscard]] static double stepSize() { return FanCurveChartModel::fineStep; }
    [[nodiscard]] Qt::FocusReason focusReason() const;

Q_SIGNALS:
    void chartChanged();
    void indexChanged();
    void rowChanged();
    void valueChanged();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<FanCurveChartModel> m_chart;
    int m_index = -1;
    CurvePointRow m_row;
};

} // namespace kestrowind
