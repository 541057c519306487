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
constexpr int idsPerSample = 16;

QList<LineChart::Series> lines(const QList<HistoryPoint>& points, const QStringList& newestNames) {
    QStringList names;
    for (const HistoryPoint& point : points)
        names.append(point.seriesName);
    names.removeDuplicates();
    QList<LineChart::Series> lines;
    for (const QString& name : names) {
        lines.append({.name = name,
                      .readout = localized("dashboard.chart.readoutFan").arg(name),
                      .points = HistoryPoints::line(points, name),
                      .isDashed = isDashed(name, newestNames)});
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

QList<HistoryPoint> points(const QList<TelemetrySample>& samples) {
    QList<HistoryPoint> points;
    for (const TelemetrySample& sample : samples) {
        for (const SMCFanReading& fan : sample.fans)
            points.append(HistoryPoints::of(sample, samples.last(), fan.index, idsPerSample,
                                            seriesName(fan.index), fan.actualRPM));
    }
    return points;
}

LineChart::Domain domain(const QList<TelemetrySample>& samples, const QList<HistoryPoint>& points) {
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
    for (const HistoryPoint& point : points)
        raise(point.value);
    return {.lower = 0, .upper = std::ceil(highest / roundTo) * roundTo};
}

LineChart chart(const QList<TelemetrySample>& samples) {
    const QList<HistoryPoint> all = points(samples);
    LineChart chart =
        HistoryChartAxis::chart(samples, domain(samples, all), WholeNumberText::rounded);
    chart.series = lines(all, seriesNames(samples));
    if (all.isEmpty())
        return chart;
    const auto [lowest, highest] = std::ranges::minmax(all, {}, &HistoryPoint::value);
    chart.spoken = localized("dashboard.chart.spokenFanSpeeds")
                       .arg(HistorySamples::windowCaption(samples))
                       .arg(WholeNumberText::truncated(lowest.value),
                            WholeNumberText::truncated(highest.value));
    return chart;
}

} // namespace kestrowind::FanSpeedHistory
