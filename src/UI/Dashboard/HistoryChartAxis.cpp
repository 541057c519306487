#include "UI/Dashboard/HistoryChartAxis.h"

#include "Core/LocalizedText.h"
#include "UI/Dashboard/HistoryPoints.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrowind::HistoryChartAxis {
namespace {

struct TickRule {
    double longestSpan;
    double step; ///< also the first tick's distance from the newest sample
};

constexpr TickRule tickRules[] = {
    {2.5, 0.5}, {6, 1}, {15, 3}, {std::numeric_limits<double>::infinity(), 5}};

/// More lines than this cannot be told apart; half an hour of samples never has them. They come
/// with a long sleep, or with a clock that was set by years while we ran.
constexpr double mostTimeTicks = 96;

/// Below this, in seconds, a time is told in seconds.
constexpr double secondsLimit = 95;

constexpr double mostValueTicks = 5;

} // namespace

LineChart chart(const QList<TelemetrySample>& samples, const LineChart::Domain& values,
                const std::function<QString(double)>& unit) {
    const double minutes = span(samples);
    LineChart chart{.time = {.lower = -minutes, .upper = 0}, .values = values};
    for (const double tick : ticks(minutes))
        chart.timeTicks.append({.position = tick, .label = label(tick)});
    for (const double tick : valueTicks(values))
        chart.valueTicks.append({.position = tick, .label = unit(tick)});
    return chart;
}

double span(const QList<TelemetrySample>& samples) {
    return samples.isEmpty()
               ? 1
               : std::max(-HistoryPoints::minutesBetween(samples.last(), samples.first()), 1.0);
}

QList<double> ticks(double span) {
    const double step = std::ranges::find_if(tickRules, [span](const TickRule& rule) {
                            return span <= rule.longestSpan;
                        })->step;
    const double stride = step * std::max(1.0, std::ceil(span / step / mostTimeTicks));
    QList<double> ticks;
    for (double tick = -stride; tick > -span; tick -= stride)
        ticks.append(tick);
    return ticks;
}

QString label(double tick) {
    const double minutes = -tick;
    if (minutes * 60 < secondsLimit)
        return localized("dashboard.chart.axisSecondsAgo").arg(std::lround(minutes * 60));
    return localized("dashboard.chart.axisMinutesAgo").arg(std::lround(minutes));
}

QString timeAgo(double minutesFromNow) {
    const auto seconds = std::lround(-minutesFromNow * 60);
    if (seconds <= 0)
        return localized("dashboard.chart.readoutNow");
    if (seconds < 60)
        return localized("dashboard.chart.axisSecondsAgo").arg(seconds);
    return localized("dashboard.chart.readoutMinutesAgo").arg(seconds / 60).arg(seconds % 60);
}

QList<double> valueTicks(const LineChart::Domain& domain) {
    QList<double> ticks;
    // 1, 2 or 5 times a power of ten.
    const double least = domain.length() / mostValueTicks;
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    double step = 10 * power;
    for (const double factor : {5.0, 2.0, 1.0}) {
        if (factor * power >= least)
            step = factor * power;
    }
    for (double tick = std::ceil(domain.lower / step) * step; tick <= domain.upper; tick += step)
        ticks.append(tick);
    return ticks;
}

} // namespace kestrowind::HistoryChartAxis
