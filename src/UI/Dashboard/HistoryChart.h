#pragma once

#include "UI/Dashboard/ChartReadout.h"
#include "UI/Dashboard/LineChart.h"
#include "UI/DesignSystem/PaintedItem.h"

#include <optional>

namespace kestrowind {

/// A chart of the history. What it shows under the pointer is told beside it.
class HistoryChart : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::LineChart chart MEMBER m_chart NOTIFY lookChanged FINAL)
    Q_PROPERTY(kestrowind::ChartReadout readout READ readout NOTIFY readoutChanged FINAL)
    QML_ELEMENT

public:
    explicit HistoryChart(QQuickItem* parent = nullptr);

    [[nodiscard]] const ChartReadout& readout() const { return m_readout; }

Q_SIGNALS:
    void readoutChanged();

protected:
    void paint(QPainter& painter) override;
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
