#include "UI/Dashboard/FanSpeedHistory.h"

#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "UI/Dashboard/HistoryChartAxis.h"
#include "UI/Dashboard/HistorySamples.h"

#include <algorithm>
#include <cmath>

namespace kestrowind::FanSpeedHistory {
namespace {

using namespace Qt::StringLiterals;

constexpr double roundTo = 1000;
constexpr qint64 idsPerSample = 16;

QList<LineChart::Series> lines(const QList<Point>& points, const QStringList& names) {
    QList<LineChart::Series> lines;
    for (const Point& point : points) {
        auto line = std::ranges::find(lines, point.seriesName, &LineChart::Series::name);
        if (line == lines.end()) {
            lines.append({.name = point.seriesName,
                          .readout = localized("dashboard.chart.readoutFan").arg(point.seriesName),
                          .isDashed = isDashed(point.seriesName, names)});
            line = lines.end() - 1;
        }
        line->points.append({point.minutesFromNow, point.rpm});
    }
    return lines;
}

} // namespace

QString seriesName(int fanIndex) {
    if (fanIndex == 0)
        return u"Left"_s;
    return fanIndex == 1 ? u"Right"_s : u"Fan %1"_s.arg(fanIndex + 1);
}

QStringList seriesNames(const QList<TelemetrySample>& samples) {
    QStringList names;
    if (!samples.isEmpty()) {
        for (const SMCFanReading& fan : samples.last().fans)
            names.append(seriesName(fan.index));
    }
    return names;
}

bool isDashed(qsizetype position) {
    return position > 0;
}

bool isDashed(const QString& name, const QStringList& seriesNames) {
    return isDashed(seriesNames.indexOf(name));
}

QList<Point> points(const QList<TelemetrySample>& samples) {
    QList<Point> points;
    for (const TelemetrySample& sample : samples) {
        const double minutes = HistoryChartAxis::minutesFromNow(sample, samples.last());
        const qint64 id =
            HistoryChartAxis::millisecondsFromNow(sample, samples.last()) * idsPerSample;
        for (const SMCFanReading& fan : sample.fans)
            points.append({id + fan.index, minutes, seriesName(fan.index), fan.actualRPM});
    }
    return points;
}

LineChart::Domain domain(const QList<TelemetrySample>& samples, const QList<Point>& points) {
    double highest = roundTo;
    // Speeds come unchecked from the machine.
    const auto raise = [&highest](double rpm) {
        if (std::isfinite(rpm))
            highest = std::max(highest, rpm);
    };
    if (!samples.isEmpty()) {
        for (const SMCFanReading& fan : samples.last().fans)
            raise(fan.maxRPM);
    }
    for (const Point& point : points)
        raise(point.rpm);
    return {.lower = 0, .upper = std::ceil(highest / roundTo) * roundTo};
}

LineChart chart(const QList<TelemetrySample>& samples) {
    const QList<Point> all = points(samples);
    const double span = HistoryChartAxis::span(samples);
    LineChart chart;
    chart.time = HistoryChartAxis::domain(span);
    chart.values = domain(samples, all);
    chart.timeTicks = HistoryChartAxis::labelledTicks(span);
    for (const double tick : HistoryChartAxis::valueTicks(chart.values)) {
        chart.valueTicks.append({.position = tick, .label = WholeNumberText::rounded(tick)});
    }
    chart.series = lines(all, seriesNames(samples));
    if (all.isEmpty())
        return chart;
    const auto [lowest, highest] = std::ranges::minmax(all, {}, &Point::rpm);
    chart.spoken =
        localized("dashboard.chart.spokenFanSpeeds")
            .arg(HistorySamples::windowCaption(samples))
            .arg(WholeNumberText::truncated(lowest.rpm), WholeNumberText::truncated(highest.rpm));
    return chart;
}

} // namespace kestrowind::FanSpeedHistory
