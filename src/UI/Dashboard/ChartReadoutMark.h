#pragma once

#include "UI/Dashboard/ChartReadout.h"

#include <QQuickPaintedItem>

namespace kestrowind {

/// A line at the moment that is read, and a dot on each of the chart's lines. As high as the chart
/// and only as wide as a dot, so that following the pointer costs next to nothing.
class ChartReadoutMark : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(
        kestrowind::ChartReadout readout READ readout WRITE setReadout NOTIFY readoutChanged FINAL)
    QML_ELEMENT

public:
    explicit ChartReadoutMark(QQuickItem* parent = nullptr);

    [[nodiscard]] const ChartReadout& readout() const { return m_readout; }
    void setReadout(const ChartReadout& readout);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void readoutChanged();

private:
    ChartReadout m_readout;
};

} // namespace kestrowind
