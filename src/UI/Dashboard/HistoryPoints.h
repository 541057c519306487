#pragma once

#include "Core/TelemetrySample.h"

#include <QList>
#include <QPolygonF>
#include <QString>

namespace kestrowind {

/// One value of one line of the history.
struct HistoryPoint {
    qint64 id = 0;             ///< unique in its chart and stable for a sample's age
    double minutesFromNow = 0; ///< before the newest sample: 0 and below
    QString seriesName = {};
    double value = 0; ///< degrees Celsius or revolutions per minute

    bool operator==(const HistoryPoint&) const = default;
};

namespace HistoryPoints {

/// From one sample to the newest in minutes, 0 and below.
[[nodiscard]] double minutesBetween(const TelemetrySample& newest, const TelemetrySample& sample);

/// The point at `place` of the `perSample` that a sample may have.
[[nodiscard]] HistoryPoint of(const TelemetrySample& sample, const TelemetrySample& newest,
                              int place, int perSample, const QString& seriesName, double value);

/// Of one series: time across, values upwards.
[[nodiscard]] QPolygonF line(const QList<HistoryPoint>& points, const QString& seriesName);

} // namespace HistoryPoints
} // namespace kestrowind
