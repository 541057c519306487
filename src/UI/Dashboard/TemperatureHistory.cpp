#include "UI/Dashboard/TemperatureHistory.h"

#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "UI/Dashboard/HistoryChartAxis.h"
#include "UI/Dashboard/HistorySamples.h"

#include <algorithm>
#include <cmath>

namespace kestrowind::TemperatureHistory {
namespace {

using namespace Qt::StringLiterals;

constexpr double margin = 4;
constexpr double roundTo = 5;
constexpr double shortestDomain = 10;
constexpr LineChart::Domain emptyDomain{.lower = 25, .upper = 95};

QString cpuSeries() {
    return u"CPU Max"_s;
}

QString gpuSeries() {
    return u"GPU Max"_s;
}

LineChart::Series line(const QList<Point>& points, const QString& name, const char* readout,
                       LineChart::Ink ink) {
    LineChart::Series line{
        .name = name, .readout = localized(readout), .ink = ink, .isFilled = true};
    for (const Point& point : points) {
        if (point.seriesName == name)
            line.points.append({point.minutesFromNow, point.celsius});
    }
    return line;
}

QString spokenRange(const char* key, const LineChart::Series& line) {
    if (line.points.isEmpty())
        return localized(key).arg(WholeNumberText::unknown(), WholeNumberText::unknown());
    const auto [lowest, highest] = std::ranges::minmax(line.points, {}, &QPointF::y);
    return localized(key).arg(std::lround(lowest.y())).arg(std::lround(highest.y()));
}

} // namespace

QList<Point> points(const QList<TelemetrySample>& samples) {
    QList<Point> points;
    points.reserve(2 * samples.size());
    for (const TelemetrySample& sample : samples) {
        const double minutes = HistoryChartAxis::minutesFromNow(sample, samples.last());
        const qint64 id = HistoryChartAxis::millisecondsFromNow(sample, samples.last()) * 2;
        if (SMCTemperatureSnapshot::isKnown(sample.temperatures.cpuMax))
            points.append({id, minutes, cpuSeries(), sample.temperatures.cpuMax});
        if (SMCTemperatureSnapshot::isKnown(sample.temperatures.gpuMax))
            points.append({id + 1, minutes, gpuSeries(), sample.temperatures.gpuMax});
    }
    return points;
}

LineChart::Domain domain(const QList<Point>& points) {
    if (points.isEmpty())
        return emptyDomain;
    const auto [lowest, highest] = std::ranges::minmax(points, {}, &Point::celsius);
    const double lower = std::max(std::floor((lowest.celsius - margin) / roundTo) * roundTo, 0.0);
    const double upper = std::ceil((highest.celsius + margin) / roundTo) * roundTo;
    return {.lower = lower, .upper = std::max(upper, lower + shortestDomain)};
}

LineChart chart(const QList<TelemetrySample>& samples) {
    const QList<Point> all = points(samples);
    const double span = HistoryChartAxis::span(samples);
    LineChart chart;
    chart.time = HistoryChartAxis::domain(span);
    chart.values = domain(all);
    chart.timeTicks = HistoryChartAxis::labelledTicks(span);
    for (const double tick : HistoryChartAxis::valueTicks(chart.values)) {
        chart.valueTicks.append(
            {.position = tick,
             .label = localized("dashboard.chart.axisDegrees").arg(std::lround(tick))});
    }
    if (samples.isEmpty())
        return chart;
    chart.series = {
        line(all, cpuSeries(), "dashboard.chart.readoutCPU", LineChart::Ink::cpu),
        line(all, gpuSeries(), "dashboard.chart.readoutGPU", LineChart::Ink::gpu),
    };
    chart.spoken = localized("dashboard.chart.spokenTemperatures")
                       .arg(HistorySamples::windowCaption(samples),
                            spokenRange("dashboard.chart.spokenCPU", chart.series[0]),
                            spokenRange("dashboard.chart.spokenGPU", chart.series[1]));
    return chart;
}

} // namespace kestrowind::TemperatureHistory
