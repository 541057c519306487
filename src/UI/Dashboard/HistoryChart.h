#pragma once

#include "UI/Dashboard/ChartReadout.h"
#include "UI/Dashboard/LineChart.h"

#include <QQuickPaintedItem>

#include <optional>

namespace kestrowind {

/// A chart of the history. Repainted only for new data, a new size or another colour scheme, and
/// not while it is invisible. What it shows under the pointer is told beside it.
class HistoryChart : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::LineChart chart READ chart WRITE setChart NOTIFY chartChanged FINAL)
    Q_PROPERTY(kestrowind::ChartReadout readout READ readout NOTIFY readoutChanged FINAL)
    QML_ELEMENT

public:
    explicit HistoryChart(QQuickItem* parent = nullptr);

    [[nodiscard]] const LineChart& chart() const { return m_chart; }
    void setChart(const LineChart& chart);

    [[nodiscard]] const ChartReadout& readout() const { return m_readout; }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void chartChanged();
    void readoutChanged();

protected:
    void componentComplete() override;
    void hoverEnterEvent(QHoverEvent* event) override { hoverMoveEvent(event); }
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;

private:
    [[nodiscard]] LineChartPainter::Look look() const;
    void refreshReadout();

    LineChart m_chart;
    std::optional<double> m_pointer; ///< across, while it is over the chart
    ChartReadout m_readout;
};

} // namespace kestrowind
