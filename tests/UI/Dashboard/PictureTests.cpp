#include "UI/Dashboard/FanGaugeFacts.h"
#include "UI/Dashboard/FanSpeedHistory.h"
#include "UI/Dashboard/HistoryChart.h"
#include "UI/Dashboard/TemperatureHistory.h"
#include "UI/DesignSystem/Scene.h"
#include "UI/TestState.h"

#include <QTest>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Eight minutes in which a fan was silent once, and the clock was wrong once.
QList<TelemetrySample> eightMinutes() {
    QList<TelemetrySample> samples;
    for (int minute = 0; minute <= 8; ++minute) {
        const double wave = minute % 3;
        const double clock = minute == 2 ? -0.6 : minute;
        samples.append(sampleAt(60 * clock, 55 + 9 * wave, 48 + 2 * minute,
                                {1400 + 900 * wave, 2500 + 250.0 * minute}));
    }
    samples[4].fans[0].actualRPM = std::numeric_limits<double>::quiet_NaN();
    return samples;
}

TEST(PictureTests, ChartsHaveAxesLinesAndWhatIsReadUnderThePointer) {
    const QList<TelemetrySample> samples = eightMinutes();
    for (const auto& [name, shown, pointer] :
         {std::tuple(u"Dashboard/temperatures"_s, TemperatureHistory::chart(samples), 300),
          {u"Dashboard/fanSpeeds"_s, FanSpeedHistory::chart(samples), 232}}) {
        Scene scene("import Kestrowind.Dashboard\n"
                    "HistoryPlot { y: 30; width: 420; height: 170 }",
                    {420, 204});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
        auto& chart = dynamic_cast<HistoryChart&>(scene.item());
        chart.setProperty("chart", QVariant::fromValue(shown));
        QTest::mouseMove(&scene.window(), {pointer, 90});
        ASSERT_TRUE(QTest::qWaitFor([&] { return chart.readout().isShown; }));
        EXPECT_TRUE(looksLike(name, scene.inBothSchemes()));
    }
}

TEST(PictureTests, AGaugeStandsAroundItsSpeedAndAboveItsName) {
    Scene scene(R"(
        import Kestrowind.Dashboard
        Column {
            property fanGaugeFacts leftFan
            property fanGaugeFacts rightFan

            Row {
                padding: 16; spacing: 40
                FanGaugeView { row: leftFan; showsName: true }
                FanGaugeView { row: rightFan; showsName: true }
            }
            Row {
                padding: 16; spacing: 16
                ChartLegendEntry { text: 'Left'; LineSample { isDashed: false } }
                ChartLegendEntry { text: 'Right'; LineSample { isDashed: true } }
            }
        })",
                {292, 224});
    scene.item().setProperty(
        "leftFan", QVariant::fromValue(FanGaugeFacts{.name = u"Left"_s,
                                                     .readout = u"2317"_s,
                                                     .caption = u"rpm"_s,
                                                     .reason = u"57% for 67 °C on “Cool”"_s,
                                                     .targetFraction = 0.6,
                                                     .fraction = 0.35}));
    scene.item().setProperty("rightFan",
                             QVariant::fromValue(FanGaugeFacts{.name = u"Right"_s,
                                                               .readout = u"0"_s,
                                                               .caption = u"parked"_s,
                                                               .reason = u"System control"_s,
                                                               .isParked = true}));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    EXPECT_TRUE(looksLike(u"Dashboard/gauges"_s, scene.inBothSchemes()));
}

} // namespace
} // namespace kestrowind
