#pragma once

#include "Core/TelemetrySample.h"
#include "UI/Dashboard/LineChart.h"

/// The chart of the hottest CPU and GPU temperatures.
namespace kestrowind::TemperatureHistory {

struct Point {
    qint64 id = 0; ///< unique and stable for a sample's age
    double minutesFromNow = 0;
    QString seriesName = {};
    double celsius = 0;

    bool operator==(const Point&) const = default;
};

/// For each sample its CPU point, then its GPU point, where there is such a sensor.
[[nodiscard]] QList<Point> points(const QList<TelemetrySample>& samples);
[[nodiscard]] LineChart::Domain domain(const QList<Point>& points);
[[nodiscard]] LineChart chart(const QList<TelemetrySample>& samples);

} // namespace kestrowind::TemperatureHistory
