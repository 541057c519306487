#pragma once

#include "UI/Dashboard/HistoryPoints.h"
#include "UI/Dashboard/LineChart.h"

#include <QStringList>

/// The chart of the fans' speeds.
namespace kestrowind::FanSpeedHistory {

/// A line's name in the chart; what people read in the legend is the fan's display name.
[[nodiscard]] QString seriesName(int fanIndex);
/// Of the newest sample's fans, in order.
[[nodiscard]] QStringList seriesNames(const QList<TelemetrySample>& samples);
/// Whether the fan at a position of the newest sample's list has a dashed line: all share one
/// colour, the first is solid.
[[nodiscard]] bool isDashed(qsizetype position);
/// By name; a fan that the newest sample does not have is solid.
[[nodiscard]] bool isDashed(const QString& name, const QStringList& seriesNames);

[[nodiscard]] QList<HistoryPoint> points(const QList<TelemetrySample>& samples);
[[nodiscard]] LineChart::Domain domain(const QList<TelemetrySample>& samples,
                                       const QList<HistoryPoint>& points);
[[nodiscard]] LineChart chart(const QList<TelemetrySample>& samples);

} // namespace kestrowind::FanSpeedHistory
