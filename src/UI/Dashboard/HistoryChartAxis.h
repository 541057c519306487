#pragma once

#include "Core/TelemetrySample.h"
#include "UI/Dashboard/LineChart.h"

#include <functional>

/// The axes' rules that both charts share. Times are minutes before the newest sample: 0 and below.
namespace kestrowind::HistoryChartAxis {

/// A chart without lines: the samples' time across, and the values upwards, whose ticks `unit` puts
/// into words.
[[nodiscard]] LineChart chart(const QList<TelemetrySample>& samples,
                              const LineChart::Domain& values,
                              const std::function<QString(double)>& unit);

/// From oldest to newest in minutes, at least 1.
[[nodiscard]] double span(const QList<TelemetrySample>& samples);
/// From the newest to the oldest.
[[nodiscard]] QList<double> ticks(double span);
[[nodiscard]] QString label(double tick);
/// The exact time of a sample, such as "3 min 20 s ago".
[[nodiscard]] QString timeAgo(double minutesFromNow);

/// Round values of a vertical domain, so few that their labels stand apart.
[[nodiscard]] QList<double> valueTicks(const LineChart::Domain& domain);

} // namespace kestrowind::HistoryChartAxis
