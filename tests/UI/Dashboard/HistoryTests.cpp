#include "Core/LocalizedText.h"
#include "UI/Dashboard/ChartReadout.h"
#include "UI/Dashboard/FanSpeedHistory.h"
#include "UI/Dashboard/HistoryChartAxis.h"
#include "UI/Dashboard/HistorySamples.h"
#include "UI/Dashboard/LineChartPainter.h"
#include "UI/Dashboard/TemperatureHistory.h"
#include "UI/TestState.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Samples at times in seconds.
QList<TelemetrySample> samplesAt(const QList<double>& times) {
    QList<TelemetrySample> samples;
    for (const double time : times)
        samples.append(sampleAt(time, 50, 45, {2000, 2100}));
    return samples;
}

TEST(HistorySamples, KeepsAboutTwoHundredAndFortyAndTheNewest) {
    const std::tuple<int, int, int> rows[] = {{0, 0, 1},     {1, 1, 1},     {240, 240, 1},
                                              {241, 121, 2}, {242, 122, 2}, {480, 241, 2},
                                              {481, 161, 3}, {900, 226, 4}};
    for (const auto& [count, kept, step] : rows) {
        QList<TelemetrySample> history;
        for (int index = 0; index < count; ++index)
            history.append(sampleAt(index, 50, 50));
        const QList<TelemetrySample> samples = HistorySamples::downsampled(history);
        ASSERT_EQ(samples.size(), kept) << count;
        for (int index = 0; index < kept; ++index)
            ASSERT_EQ(samples[index], history[std::min(index * step, count - 1)]) << count;
    }
}

TEST(HistorySamples, SaysHowMuchTimeTheySpan) {
    const std::pair<QList<double>, QString> rows[] = {
        {{}, localized("dashboard.history.windowFallback")},
        {{0, 60}, localized("dashboard.history.windowLastMinute")},
        {{0, 60.001}, localized("dashboard.history.windowLastMinutes").arg(2)},
        {{0, 9, 1798}, localized("dashboard.history.windowLastMinutes").arg(30)},
    };
    for (const auto& [times, caption] : rows)
        EXPECT_EQ(HistorySamples::windowCaption(samplesAt(times)), caption);
}

TEST(HistoryChartAxis, ChoosesTicksByTheSpan) {
    struct Row {
        QList<double> times;
        double span;
        QList<double> ticks;
    };
    const Row rows[] = {
        {{}, 1, {-0.5}},
        {{7}, 1, {-0.5}},
        {{0, 30}, 1, {-0.5}},
        {{9, 0}, 1, {-0.5}}, // the clock was set back
        {{0, 90}, 1.5, {-0.5, -1}},
        {{0, 150}, 2.5, {-0.5, -1, -1.5, -2}},
        {{0, 153}, 2.55, {-1, -2}},
        {{0, 360}, 6, {-1, -2, -3, -4, -5}},
        {{0, 600}, 10, {-3, -6, -9}},
        {{0, 900}, 15, {-3, -6, -9, -12}},
        {{0, 1798}, 1798 / 60.0, {-5, -10, -15, -20, -25}},
    };
    for (const Row& row : rows) {
        const double span = HistoryChartAxis::span(samplesAt(row.times));
        EXPECT_DOUBLE_EQ(span, row.span);
        EXPECT_EQ(HistoryChartAxis::ticks(span), row.ticks) << span;
    }
    // A machine slept, or its clock was set while we ran: by an hour, to its day, from 1970.
    for (const double span : {90.0, 480.0, 1440.0, 29.6e6}) {
        const QList<double> ticks = HistoryChartAxis::ticks(span);
        EXPECT_LE(ticks.size(), 96) << span;
        EXPECT_GE(ticks.size(), 17) << span;
        EXPECT_LT(ticks.last(), -0.9 * span);
    }
}

TEST(HistoryChartAxis, LabelsInSecondsThenMinutes) {
    const std::tuple<double, const char*, int> rows[] = {
        {-0.5, "dashboard.chart.axisSecondsAgo", 30}, {-1, "dashboard.chart.axisSecondsAgo", 60},
        {-1.5, "dashboard.chart.axisSecondsAgo", 90}, {-2, "dashboard.chart.axisMinutesAgo", 2},
        {-25, "dashboard.chart.axisMinutesAgo", 25},
    };
    for (const auto& [tick, key, number] : rows)
        EXPECT_EQ(HistoryChartAxis::label(tick), localized(key).arg(number)) << tick;
}

TEST(HistoryChartAxis, PutsRoundValueTicksIntoTheDomain) {
    const std::pair<LineChart::Domain, QList<double>> rows[] = {
        {{35, 65}, {40, 50, 60}},           {{45, 60}, {45, 50, 55, 60}},
        {{25, 95}, {40, 60, 80}},           {{0, 1000}, {0, 200, 400, 600, 800, 1000}},
        {{0, 7000}, {0, 2000, 4000, 6000}},
    };
    for (const auto& [domain, ticks] : rows)
        EXPECT_EQ(HistoryChartAxis::valueTicks(domain), ticks) << domain.upper;
}

TEST(TemperatureHistory, RoundsItsDomainOutwards) {
    const std::pair<QList<double>, LineChart::Domain> rows[] = {
        {{}, {25, 95}},       {{41, 58}, {35, 65}}, {{50, 52}, {45, 60}},
        {{49, 49}, {45, 55}}, {{0, 3}, {0, 10}},    {{96, 104}, {90, 110}},
    };
    for (const auto& [celsius, domain] : rows) {
        QList<HistoryPoint> points;
        for (const double value : celsius)
            points.append(HistoryPoint{.value = value});
        EXPECT_EQ(TemperatureHistory::domain(points), domain) << domain.lower;
    }
}

TEST(FanSpeedHistory, CoversTheFastestFan) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const std::tuple<double, double, double> rows[] = {{6550, 2000, 7000}, {6000, 2000, 6000},
                                                       {500, 300, 1000},   {6000, 6001, 7000},
                                                       {nan, 1500, 2000},  {1500, nan, 2000}};
    for (const auto& [maxRPM, speed, upper] : rows) {
        const QList<TelemetrySample> samples = {sampleAt(0, 50, 50, {speed}, 9000),
                                                sampleAt(2, 50, 50, {900}, maxRPM)};
        EXPECT_EQ(FanSpeedHistory::domain(samples, FanSpeedHistory::points(samples)),
                  (LineChart::Domain{0, upper}));
    }
    EXPECT_EQ(FanSpeedHistory::domain({}, {}), (LineChart::Domain{0, 1000}));
}

TEST(FanSpeedHistory, DrawsTheFirstFanSolid) {
    QList<TelemetrySample> samples = {sampleAt(0, 50, 50, {1000, 1100, 1200, 1300}),
                                      sampleAt(2, 50, 50, {2000, 2100, 2200, 2300})};
    // The newest sample lost the first fan and the last one.
    samples.last().fans.erase(samples.last().fans.begin());
    samples.last().fans.pop_back();
    const LineChart chart = FanSpeedHistory::chart(samples);
    QStringList lines;
    for (const LineChart::Series& line : chart.series)
        lines.append(u"%1 %2 %3"_s.arg(line.name).arg(line.points.size()).arg(line.isDashed));
    EXPECT_EQ(lines, (QStringList{u"Left 1 0"_s, u"Right 2 0"_s, u"Fan 3 2 1"_s, u"Fan 4 1 0"_s}));
}

TEST(ChartReadout, TellsTheNearestMomentThatIsShown) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const QList<TelemetrySample> samples = {sampleAt(0, 61, 55, {1000, 2000}),
                                            sampleAt(185, 62.4, 55.6, {nan, 2345}),
                                            sampleAt(200, 70, 60, {1500, 2500})};
    const LineChartPainter::Look look{.size = {400, 190}};
    const LineChart chart = TemperatureHistory::chart(samples);
    const double moment = look.position({-0.25, 0}, chart).x();
    const auto nearby = ChartReadout::nearest(chart, look, moment - 4);
    EXPECT_EQ(nearby.text, u"15\u00a0s ago  ·  CPU 62 °C  ·  GPU 56 °C"_s);
    EXPECT_EQ(nearby.x, moment);
    ASSERT_EQ(nearby.dots.size(), 2);
    EXPECT_EQ(nearby.dots[1].y, look.position({-0.25, 55.6}, chart).y());

    const LineChart fans = FanSpeedHistory::chart(samples);
    EXPECT_EQ(ChartReadout::nearest(fans, look, moment).text,
              u"15\u00a0s ago  ·  Right 2345 rpm"_s);
    EXPECT_EQ(ChartReadout::nearest(fans, look, look.plot().right()).text,
              u"Now  ·  Left 1500 rpm  ·  Right 2500 rpm"_s);
    EXPECT_EQ(ChartReadout::nearest(fans, look, look.plot().left()).text,
              u"3 min 20 s ago  ·  Left 1000 rpm  ·  Right 2000 rpm"_s);

    EXPECT_FALSE(ChartReadout::nearest(fans, look, look.plot().left() - 1).isShown);
    EXPECT_FALSE(ChartReadout::nearest(TemperatureHistory::chart({}), look, moment).isShown);
    LineChart late = chart;
    late.time = {.lower = -10, .upper = -5};
    EXPECT_FALSE(ChartReadout::nearest(late, look, 200).isShown) << "no sample is in sight";
}

} // namespace
} // namespace kestrowind
