#include "Core/HistoryTable.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace kestrowind {
namespace {

struct Column {
    const char* title;
    double SMCTemperatureSnapshot::*value;
};

constexpr std::array temperatureColumns{
    Column{"CPU average (Celsius)", &SMCTemperatureSnapshot::cpuAverage},
    Column{"CPU hottest (Celsius)", &SMCTemperatureSnapshot::cpuMax},
    Column{"GPU average (Celsius)", &SMCTemperatureSnapshot::gpuAverage},
    Column{"GPU hottest (Celsius)", &SMCTemperatureSnapshot::gpuMax},
};

constexpr int temperatureDecimals = 2;
constexpr int speedDecimals = 0;

/// Of the C locale, whatever the user's is.
QByteArray number(double value, int decimals) {
    return std::isfinite(value) ? QByteArray::number(value, 'f', decimals) : QByteArray();
}

QByteArray time(const TelemetrySample& sample, const QTimeZone& zone) {
    const auto sinceEpoch =
        std::chrono::floor<std::chrono::milliseconds>(sample.timestamp.time_since_epoch());
    // The system's zone may be one that nobody knows.
    const auto local = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(),
                                                      zone.isValid() ? zone : QTimeZone::utc());
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs).toLatin1();
}

std::set<int> fanIndexes(const QList<TelemetrySample>& samples) {
    std::set<int> indexes;
    for (const TelemetrySample& sample : samples) {
        for (const SMCFanReading& fan : sample.fans)
            indexes.insert(fan.index);
    }
    return indexes;
}

QByteArray speed(const TelemetrySample& sample, int fanIndex) {
    const auto fan = std::ranges::find(sample.fans, fanIndex, &SMCFanReading::index);
    return fan == sample.fans.end() ? QByteArray() : number(fan->actualRPM, speedDecimals);
}

} // namespace

QByteArray historyTable(const QList<TelemetrySample>& samples, const QTimeZone& zone) {
    const std::set<int> fans = fanIndexes(samples);
    QByteArray table = "Time";
    // None of these has a character that would have to be quoted.
    for (const Column& column : temperatureColumns)
        table.append(',').append(column.title);
    for (const int fan : fans)
        table.append(",Fan ").append(QByteArray::number(fan + 1)).append(" (rpm)");
    table.append("\r\n");

    for (const TelemetrySample& sample : samples) {
        table.append(time(sample, zone));
        for (const Column& column : temperatureColumns) {
            const double celsius = sample.temperatures.*column.value;
            table.append(',').append(SMCTemperatureSnapshot::isKnown(celsius)
                                         ? number(celsius, temperatureDecimals)
                                         : QByteArray());
        }
        for (const int fan : fans)
            table.append(',').append(speed(sample, fan));
        table.append("\r\n");
    }
    return table;
}

} // namespace kestrowind
