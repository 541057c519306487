#pragma once

#include "UI/Dashboard/LineChartPainter.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// What a chart says of the moment under the pointer.
struct ChartReadout {
    Q_GADGET
    Q_PROPERTY(bool isShown MEMBER isShown CONSTANT FINAL)
    Q_PROPERTY(double x MEMBER x CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    QML_VALUE_TYPE(chartReadout)

public:
    /// A line's value at that moment.
    struct Dot {
        double y = 0;
        LineChart::Ink ink = LineChart::Ink::foreground;
        bool operator==(const Dot&) const = default;
    };

    bool isShown = false;
    double x = 0; ///< of the moment, as y below in the chart's points
    double top = 0;
    double bottom = 0;
    QList<Dot> dots = {};
    QString text = {}; ///< when that was, and each value

    bool operator==(const ChartReadout&) const = default;

    /// Of the sample nearest to `x`; nothing outside of the plot and without samples.
    [[nodiscard]] static ChartReadout nearest(const LineChart& chart,
                                              const LineChartPainter::Look& look, double x);
};

} // namespace kestrowind
