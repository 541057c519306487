#include "UI/Dashboard/ChartReadout.h"

#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "UI/Dashboard/HistoryChartAxis.h"

#include <cmath>
#include <optional>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// In minutes before the newest sample.
std::optional<double> nearestMoment(const LineChart& chart, double wanted) {
    std::optional<double> nearest;
    for (const LineChart::Series& series : chart.series) {
        for (const QPointF& point : series.points) {
            const bool isNearer =
                !nearest || std::abs(point.x() - wanted) < std::abs(*nearest - wanted);
            if (std::isfinite(point.y()) && isNearer)
                nearest = point.x();
        }
    }
    return nearest;
}

} // namespace

ChartReadout ChartReadout::nearest(const LineChart& chart, const LineChartPainter::Look& look,
                                   double x) {
    const QRectF plot = look.plot();
    if (plot.isEmpty() || x < plot.left() || x > plot.right())
        return {};
    const double wanted = chart.time.lower + chart.time.length() * (x - plot.left()) / plot.width();
    const auto moment = nearestMoment(chart, wanted);
    // A clock that was set back has samples that the chart does not show.
    if (!moment || *moment < chart.time.lower || *moment > chart.time.upper)
        return {};

    ChartReadout readout{.isShown = true,
                         .x = look.position({*moment, 0}, chart).x(),
                         .top = plot.top(),
                         .bottom = plot.bottom()};
    QStringList words{HistoryChartAxis::timeAgo(*moment)};
    for (const LineChart::Series& series : chart.series) {
        for (const QPointF& point : series.points) {
            if (point.x() != *moment || !std::isfinite(point.y()))
                continue;
            readout.dots.append({.y = look.position(point, chart).y(), .ink = series.ink});
            words.append(series.readout.arg(WholeNumberText::rounded(point.y())));
            break;
        }
    }
    readout.text = words.join(u"  ·  "_s);
    return readout;
}

} // namespace kestrowind
