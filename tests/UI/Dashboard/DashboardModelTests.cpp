#include "Core/LocalizedText.h"
#include "Support/QtPrinters.h"
#include "UI/Dashboard/DashboardModel.h"
#include "UI/TestState.h"

#include <QLocale>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using State = DashboardModel::State;

TEST(FanGaugeFacts, ShowsSpeedAndSpin) {
    struct Row {
        double actual;
        QString readout;
        bool showsParkedCaption;
        double fraction;
    };
    const Row rows[] = {
        {2317.9, u"2317"_s, false, 0.354},
        {0, u"0"_s, true, 0},
        {0.4, u"0"_s, false, 0},
    };
    for (const Row& row : rows) {
        const auto facts = FanGaugeFacts::of({.actualRPM = row.actual, .maxRPM = 6550}, {}, 0, 1);
        EXPECT_EQ(facts.readout, row.readout);
        EXPECT_EQ(facts.caption,
                  localized(row.showsParkedCaption ? "gauge.readout.parked" : "gauge.readout.rpm"))
            << row.actual;
        EXPECT_DOUBLE_EQ(facts.fraction, row.fraction) << row.actual;
        EXPECT_DOUBLE_EQ(facts.revolutionsPerSecond, 2.2 * row.fraction) << row.actual;
        EXPECT_EQ(facts.isParked, row.fraction == 0) << row.actual;
    }
}

class DashboardModelTest : public testing::Test {
protected:
    void ingest(const TelemetrySample& sample) { state.telemetry().ingest(sample); }
    const FanGaugeFacts& fan(int row) { return model.fans()->rows().at(row); }

    TestState state;
    DashboardModel model{*state.appState, state.fileDialogs};
};

TEST_F(DashboardModelTest, ChoosesItsState) {
    EXPECT_EQ(model.state(), State::Loading);
    const std::tuple<double, std::vector<double>, State> rows[] = {
        {50, {2000}, State::Content},
        {50, {}, State::Unsupported},
        {0, {}, State::Unsupported},
        {0, {2000}, State::Content},
    };
    double time = 0;
    for (const auto& [celsius, speeds, expected] : rows) {
        ingest(sampleAt(time += 2, celsius, celsius, speeds));
        EXPECT_EQ(model.state(), expected) << time;
        EXPECT_EQ(DashboardModel(*state.appState, state.fileDialogs).state(), expected) << time;
    }
}

TEST_F(DashboardModelTest, NamesTheFansAndTellsOnlyOfWhatIsSeenToChange) {
    ingest(sampleAt(0, 50, 50, {2000, 2100}));
    ASSERT_EQ(model.fans()->rowCount(), 2);
    EXPECT_EQ(fan(0).name, localized("shared.fan.left"));
    QSignalSpy changed(model.fans(), &QAbstractItemModel::dataChanged);
    QSignalSpy removed(model.fans(), &QAbstractItemModel::rowsRemoved);
    // 2100.4 reads and turns as 2100 does.
    ingest(sampleAt(2, 50, 50, {2050, 2100.4}));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(fan(0).readout, u"2050"_s);

    TelemetrySample other = sampleAt(4, 50, 50, {2050, 2100});
    other.fans.erase(other.fans.begin());
    ingest(other);
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 0) << "the row of the first fan is not the other's";
    EXPECT_EQ(fan(0).name, localized("shared.fan.numbered").arg(2));
}

TEST_F(DashboardModelTest, ShowsAverageSmoothedMaximumAndPeak) {
    ingest(sampleAt(0, 60, 50, {2000}));
    TelemetrySample cooler = sampleAt(2, 50, 50, {2000});
    cooler.temperatures.cpuAverage = 43.75;
    QSignalSpy gpu(&model, &DashboardModel::gpuChanged);
    ingest(cooler);
    EXPECT_EQ(gpu.size(), 0);
    const auto text = [](const char* key, double celsius) {
        return localized(key).arg(QLocale().toString(celsius, 'f', 1));
    };
    EXPECT_EQ(model.cpu().average, text("gauge.readout.degrees", 43.75));
    EXPECT_EQ(model.cpu().hottestCore, text("dashboard.temperature.hottestCoreCaption", 56));
    EXPECT_EQ(model.cpu().sessionPeak, text("dashboard.temperature.sessionPeak", 60));
    EXPECT_EQ(model.gpu().sessionPeak, text("dashboard.temperature.sessionPeak", 50));
}

TEST_F(DashboardModelTest, ShowsNothingOfAProcessorWithoutSensors) {
    ingest(sampleAt(0, 60, 0, {2000}));
    ingest(sampleAt(2, 62, 0, {2000}));
    EXPECT_EQ(model.gpu().average, localized("gauge.readout.degrees").arg(u"--"_s));
    EXPECT_TRUE(model.temperatures().series[1].points.isEmpty());
    EXPECT_EQ(model.temperatures().values, (LineChart::Domain{55, 70}));
    EXPECT_TRUE(model.temperatures().spoken.contains(
        localized("dashboard.chart.spokenGPU").arg(u"--"_s, u"--"_s)));
}

TEST_F(DashboardModelTest, DrawsLinesFromTwoSamplesOnAndNoMoreThanCanBeTold) {
    ingest(sampleAt(0, 50, 50, {2000}));
    EXPECT_FALSE(model.hasHistory());
    for (int sample = 1; sample < 900; ++sample)
        ingest(sampleAt(2.0 * sample, 50, 50, {2000}));
    EXPECT_EQ(model.temperatures().series[0].points.size(), 226);
}

} // namespace
} // namespace kestrowind
