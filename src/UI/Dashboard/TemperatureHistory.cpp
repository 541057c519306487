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

QString spokenRange(const char* key, const LineChart::Series& line) {
    if (line.points.isEmpty())
        return localized(key).arg(WholeNumberText::unknown(), WholeNumberText::unknown());
    const auto [lowest, highest] = std::ranges::minmax(line.points, {}, &QPointF::y);
    return localized(key).arg(std::lround(lowest.y())).arg(std::lround(highest.y()));
}

} // namespace

QList<HistoryPoint> points(const QList<TelemetrySample>& samples) {
    QList<HistoryPoint> points;
    points.reserve(2 * samples.size());
    for (const TelemetrySample& sample : samples) {
        const auto add = [&](int place, const QString& name, double celsius) {
            if (SMCTemperatureSnapshot::isKnown(celsius))
                points.append(HistoryPoints::of(sample, samples.last(), place, 2, name, celsius));
        };
        add(0, cpuSeries(), sample.temperatures.cpuMax);
        add(1, gpuSeries(), sample.temperatures.gpuMax);
    }
    return points;
}

LineChart::Domain domain(const QList<HistoryPoint>& points) {
    if (points.isEmpty())
        return emptyDomain;
    const auto [lowest, highest] = std::ranges::minmax(points, {}, &HistoryPoint::value);
    const double lower = std::max(std::floor((lowest.value - margin) / roundTo) * roundTo, 0.0);
    const double upper = std::ceil((highest.value + margin) / roundTo) * roundTo;
    return {.lower = lower, .upper = std::max(upper, lower + shortestDomain)};
}

LineChart chart(const QList<TelemetrySample>& samples) {
    const QList<HistoryPoint> all = points(samples);
    LineChart chart = HistoryChartAxis::chart(samples, domain(all), [](double tick) {
        return localized("dashboard.chart.axisDegrees").arg(std::lround(tick));
    });
    if (samples.isEmpty())
        return chart;
    const auto line = [&all](const QString& name, const char* readout, LineChart::Ink ink) {
        return LineChart::Series{.name = name,
                                 .readout = localized(readout),
                                 .points = HistoryPoints::line(all, name),
                                 .ink = ink,
                                 .isFilled = true};
    };
    chart.series = {line(cpuSeries(), "dashboard.chart.readoutCPU", LineChart::Ink::cpu),
                    line(gpuSeries(), "dashboard.chart.readoutGPU", LineChart::Ink::gpu)};
    chart.spoken = localized("dashboard.chart.spokenTemperatures")
                       .arg(HistorySamples::windowCaption(samples),
                            spokenRange("dashboard.chart.spokenCPU", chart.series[0]),
                            spokenRange("dashboard.chart.spokenGPU", chart.series[1]));
    return chart;
}

} // namespace kestrowind::TemperatureHistory
