#pragma once

#include "UI/Dashboard/LineChart.h"

#include <QQuickPaintedItem>

namespace kestrowind {

/// A chart of the history. Repainted only for new data, a new size or another colour scheme, and
/// not while it is invisible.
class HistoryChart : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::LineChart chart READ chart WRITE setChart NOTIFY chartChanged FINAL)
    QML_ELEMENT

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    [[nodiscard]] const LineChart& chart() const { return m_chart; }
    void setChart(const LineChart& chart);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void chartChanged();

protected:
    void componentComplete() override;

private:
    LineChart m_chart;
};

} // namespace kestrowind
