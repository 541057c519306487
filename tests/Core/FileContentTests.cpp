#include "Core/HistoryTable.h"
#include "Core/LocalizedText.h"
#include "Core/PresetCoding.h"
#include "Core/PresetFile.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QFile>
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

    // The second one of the hour that happens twice, and an offset of half an hour to the west.
    const qint64 autumn = 1'761'442'200'000;
    EXPECT_TRUE(historyTable({sampleAt(autumn, {}, {})}, QTimeZone("Europe/Berlin"))
                    .contains("\r\n2025-10-26T02:30:00.000+01:00,"));
    EXPECT_TRUE(historyTable({sampleAt(-500, {}, {})}, QTimeZone("America/St_Johns"))
                    .contains("\r\n1969-12-31T20:29:59.500-03:30,"));
}

FanPreset madeBy(const QString& name, QList<FanCurvePoint> points) {
    return {.id = QUuid::createUuid(),
            .name = name,
            .symbolName = u"wind"_s,
            .curves = {FanCurve::fromStoredPoints(std::move(points))},
            .isBuiltIn = false};
}

QByteArray encoded(const QList<FanPreset>& presets) {
    return encodePresets(presets).value_or("");
}

TEST(PresetFile, TakesWhatItGaveAndNothingThatNoEditorMakes) {
    const FanPreset good = madeBy(u"  Night \n"_s, {{20, 0}, {60, 33.5}, {60, 40}, {110, 100}});
    const auto content = PresetFile::encode(good);
    ASSERT_TRUE(content);
    const auto again = PresetFile::decode(*content);
    ASSERT_TRUE(again) << again.error().toStdString();
    EXPECT_EQ(again->name, u"Night"_s);
    EXPECT_EQ(again->curves, good.curves);
    EXPECT_EQ(again->symbolName, u"wind"_s);

    const auto builtIn = PresetFile::encode(FanPreset::builtIns(2).front());
    ASSERT_TRUE(builtIn);
    EXPECT_FALSE(PresetFile::decode(*builtIn)->isBuiltIn);
    EXPECT_FALSE(PresetFile::encode(madeBy(u"x"_s, {{std::nan(""), 0}})));

    FanPreset curveless = good;
    curveless.curves.clear();
    FanPreset manyCurves = good;
    manyCurves.curves = QList<FanCurve>(PresetFile::mostCurves + 1, good.curves.front());
    const QList<FanCurvePoint> manyPoints(PresetFile::mostPoints + 1, {50, 50});
    struct Row {
        QByteArray content;
        const char* error;
    };
    for (const auto& [bad, key] : {
             Row{"", "presets.import.notAPreset"},
             Row{"[]", "presets.import.notAPreset"},
             Row{*content + *content, "presets.import.notAPreset"},
             Row{encoded({good, good}), "presets.import.several"},
             Row{encoded({madeBy(u"\u0001"_s, {{50, 50}})}), "presets.import.noName"},
             Row{encoded({curveless}), "presets.import.noCurve"},
             Row{encoded({manyCurves}), "presets.import.tooMuch"},
             Row{encoded({madeBy(u"x"_s, manyPoints)}), "presets.import.tooMuch"},
             Row{encoded({madeBy(QString(100'000, u'x'), {{50, 50}})}), "presets.import.tooMuch"},
             Row{encoded({madeBy(u"x"_s, {})}), "presets.import.noPoint"},
             Row{*content + '\0', "presets.import.notAPreset"},
             Row{encoded({madeBy(u"x"_s, {{19.9, 0}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{110.1, 0}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{50, -1}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{50, 100.5}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{60, 0}, {50, 10}})}), "presets.import.pointsOutOfOrder"},
         }) {
        const auto decoded = PresetFile::decode(bad);
        ASSERT_FALSE(decoded) << bad.left(200).toStdString();
        EXPECT_EQ(decoded.error(), localized(key)) << bad.left(200).toStdString();
    }
}

TEST(PresetFile, ReadsNothingButAFileOfASaneSize) {
    const TestHome home;
    const QString name = u"preset.json"_s;
    const QByteArray content = encoded({madeBy(u"Night"_s, {{50, 50}})});
    home.write(name, content);
    EXPECT_TRUE(PresetFile::read(home.path(name)));
    home.write(name, content + QByteArray(largestPresetsFile, ' '));
    EXPECT_FALSE(PresetFile::read(home.path(name)));
    EXPECT_FALSE(PresetFile::read(home.path()));
    EXPECT_FALSE(PresetFile::read(u"/dev/zero"_s));
    const auto missing = PresetFile::read(home.path(u"missing"_s));
    ASSERT_FALSE(missing);
    EXPECT_TRUE(missing.error().contains(u"No such file"_s)) << missing.error().toStdString();
}

} // namespace
} // namespace kestrowind
