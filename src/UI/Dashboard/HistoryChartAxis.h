#pragma once

#include "Core/TelemetrySample.h"
#include "UI/Dashboard/LineChart.h"

/// The axes' rules that both charts share. Times are minutes before the newest sample: 0 and below.
namespace kestrowind::HistoryChartAxis {

/// Of a sample before the newest one, in minutes and in whole milliseconds (towards 0).
[[nodiscard]] double minutesFromNow(const TelemetrySample& sample, const TelemetrySample& newest);
[[nodiscard]] qint64 millisecondsFromNow(const TelemetrySample& sample,
                                         const TelemetrySample& newest);

/// From oldest to newest in minutes, at least 1.
[[nodiscard]] double span(const QList<TelemetrySample>& samples);
[[nodiscard]] LineChart::Domain domain(double span);
/// From the newest to the oldest.
[[nodiscard]] QList<double> ticks(double span);
[[nodiscard]] QString label(double tick);
/// The exact time of a sample, such as "3 min 20 s ago".
[[nodiscard]] QString timeAgo(double minutesFromNow);
[[nodiscard]] QList<LineChart::Tick> labelledTicks(double span);

/// Round values of a vertical domain, so few that their labels stand apart.
[[nodiscard]] QList<double> valueTicks(const LineChart::Domain& domain);

} // namespace kestrowind::HistoryChartAxis
