#include "Core/HistoryTable.h"
#include "Support/QtPrinters.h"

#include <QLocale>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* header = "Time,CPU average (Celsius),CPU hottest (Celsius),"
                               "GPU average (Celsius),GPU hottest (Celsius)";

TelemetrySample sampleAt(qint64 milliseconds, const SMCTemperatureSnapshot& temperatures,
                         std::vector<SMCFanReading> fans) {
    return {.timestamp =
                std::chrono::system_clock::time_point(std::chrono::milliseconds(milliseconds)),
            .temperatures = temperatures,
            .fans = std::move(fans)};
}

TEST(HistoryTable, HasARowForEachSampleAndAColumnForEachFan) {
    // A language whose decimals have a comma changes nothing.
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const qint64 summer = 1'750'000'000'123; // 2025-06-15T15:06:40.123Z
    const QByteArray table = historyTable(
        {sampleAt(summer, {50.126, 61.5, 40, 45, 61.5}, {{.index = 0, .actualRPM = 2317.4}}),
         sampleAt(summer + 2000, {1e-3, std::numeric_limits<double>::quiet_NaN(), 0, 0, 0}, {}),
         sampleAt(summer + 4000, {50, 60, 40, 45, 60},
                  {{.index = 2, .actualRPM = std::numeric_limits<double>::infinity()},
                   {.index = 0, .actualRPM = 0}})},
        QTimeZone("Europe/Berlin"));
    QLocale::setDefault(before);
    EXPECT_EQ(table, QByteArray(header) +
                         ",Fan 1 (rpm),Fan 3 (rpm)\r\n"
                         "2025-06-15T17:06:40.123+02:00,50.13,61.50,40.00,45.00,2317,\r\n"
                         "2025-06-15T17:06:42.123+02:00,0.00,,,,,\r\n"
                         "2025-06-15T17:06:44.123+02:00,50.00,60.00,40.00,45.00,0,\r\n");
    EXPECT_EQ(historyTable({}), QByteArray(header) + "\r\n");

    // The hour that happens twice, and an offset of half an hour to the west.
    struct Row {
        const char* zone;
        qint64 milliseconds;
        const char* time;
    };
    for (const auto& [zone, milliseconds, time] :
         {Row{"Europe/Berlin", 1'761'438'600'000, "2025-10-26T02:30:00.000+02:00"},
          Row{"Europe/Berlin", 1'761'442'200'000, "2025-10-26T02:30:00.000+01:00"},
          Row{"America/St_Johns", -500, "1969-12-31T20:29:59.500-03:30"}})
        EXPECT_TRUE(historyTable({sampleAt(milliseconds, {}, {})}, QTimeZone(zone))
                        .contains(QByteArray("\r\n") + time + ','))
            << time;
}

} // namespace
} // namespace kestrowind
