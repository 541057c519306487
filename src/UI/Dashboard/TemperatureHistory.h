#pragma once

#include "UI/Dashboard/HistoryPoints.h"
#include "UI/Dashboard/LineChart.h"

/// The chart of the hottest CPU and GPU temperatures.
namespace kestrowind::TemperatureHistory {

/// For each sample its CPU point, then its GPU point, where there is such a sensor.
[[nodiscard]] QList<HistoryPoint> points(const QList<TelemetrySample>& samples);
[[nodiscard]] LineChart::Domain domain(const QList<HistoryPoint>& points);
[[nodiscard]] LineChart chart(const QList<TelemetrySample>& samples);

} // namespace kestrowind::TemperatureHistory
