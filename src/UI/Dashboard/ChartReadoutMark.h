#pragma once

#include "UI/Dashboard/ChartReadout.h"
#include "UI/DesignSystem/PaintedItem.h"

namespace kestrowind {

/// A line at the moment that is read, and a dot on each of the chart's lines. As high as the chart
/// and only as wide as a dot, so that following the pointer costs next to nothing.
class ChartReadoutMark : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::ChartReadout readout MEMBER m_readout NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    explicit ChartReadoutMark(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter) override;

private:
    void place();

    ChartReadout m_readout;
};

} // namespace kestrowind
