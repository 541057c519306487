#include "UI/Dashboard/HistoryPoints.h"

namespace kestrowind::HistoryPoints {

double minutesBetween(const TelemetrySample& newest, const TelemetrySample& sample) {
    return std::chrono::duration<double, std::ratio<60>>(sample.timestamp - newest.timestamp)
        .count();
}

HistoryPoint of(const TelemetrySample& sample, const TelemetrySample& newest, int place,
                int perSample, const QString& seriesName, double value) {
    const auto age =
        std::chrono::duration_cast<std::chrono::milliseconds>(sample.timestamp - newest.timestamp);
    return {.id = age.count() * perSample + place,
            .minutesFromNow = minutesBetween(newest, sample),
            .seriesName = seriesName,
            .value = value};
}

QPolygonF line(const QList<HistoryPoint>& points, const QString& seriesName) {
    QPolygonF line;
    for (const HistoryPoint& point : points) {
        if (point.seriesName == seriesName)
            line.append({point.minutesFromNow, point.value});
    }
    return line;
}

} // namespace kestrowind::HistoryPoints
