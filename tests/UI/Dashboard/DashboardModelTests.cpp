#include "Core/LocalizedText.h"
#include "UI/Dashboard/DashboardMachine.h"
#include "UI/Dashboard/DashboardModel.h"

#include <QLocale>
#include <QSignalSpy>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using State = DashboardModel::State;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(FanGaugeFacts, ShowsSpeedAndSpin) {
    struct Row {
        double actual;
        double most;
        QString readout;
        bool showsParkedCaption;
        double fraction;
    };
    const Row rows[] = {
        {2317.9, 6550, u"2317"_s, false, 0.354}, {6550, 6550, u"6550"_s, false, 1},
        {7000, 6550, u"7000"_s, false, 1},       {0, 6550, u"0"_s, true, 0},
        {-3.9, 6550, u"-3"_s, true, 0},          {0.4, 6550, u"0"_s, false, 0},
        {2000, 0, u"2000"_s, false, 0},          {2000, -1, u"2000"_s, false, 0},
        {nan, 6550, u"--"_s, false, 0},          {infinity, 6550, u"--"_s, false, 1},
        {infinity, infinity, u"--"_s, false, 0}, {1e300, 1e300, u"1000000000000000"_s, false, 1},
    };
    for (const Row& row : rows) {
        const auto facts = FanGaugeFacts::of({.actualRPM = row.actual, .maxRPM = row.most}, 0, 1);
        EXPECT_EQ(facts.readout, row.readout);
        EXPECT_EQ(facts.caption,
                  localized(row.showsParkedCaption ? "gauge.readout.parked" : "gauge.readout.rpm"))
            << row.actual;
        EXPECT_DOUBLE_EQ(facts.fraction, row.fraction) << row.actual;
        EXPECT_DOUBLE_EQ(facts.revolutionsPerSecond, 2.2 * row.fraction) << row.actual;
        EXPECT_EQ(facts.isParked, row.fraction == 0) << row.actual;
    }
}

TEST(TemperatureReadout, FollowsTheLocale) {
    struct Row {
        QLocale locale;
        double celsius;
        QString text;
    };
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    const Row rows[] = {
        {english, 54.24, u"54.2"_s}, {german, 54.26, u"54,3"_s}, {english, 0, u"0.0"_s},
        {german, 99.94, u"99,9"_s},  {english, 100, u"100"_s},   {german, 104.6, u"105"_s},
        {english, nan, u"--"_s},
    };
    const QLocale before;
    for (const Row& row : rows) {
        QLocale::setDefault(row.locale);
        EXPECT_EQ(TemperatureReadout::number(row.celsius), row.text);
    }
    QLocale::setDefault(before);
}

class DashboardModelTest : public testing::Test {
protected:
    DashboardMachine machine;
    DashboardModel model{machine.state, machine.fileDialogs};

    QVariant fan(int row, FanGaugeRows::Role role) {
        return model.fans()->data(model.fans()->index(row), role);
    }
};

TEST_F(DashboardModelTest, ChoosesItsState) {
    EXPECT_EQ(model.state(), State::Loading);
    const std::tuple<double, std::vector<double>, State> rows[] = {
        {50, {2000}, State::Content}, {50, {}, State::Unsupported},    {0, {}, State::Unsupported},
        {0, {2000}, State::Content},  {50, {2000, 1}, State::Content},
    };
    double time = 0;
    for (const auto& [celsius, speeds, state] : rows) {
        machine.ingest({sampleAt(time += 2, celsius, celsius, speeds)});
        EXPECT_EQ(model.state(), state) << time;
        EXPECT_EQ(DashboardModel(machine.state, machine.fileDialogs).state(), state) << time;
    }
}

TEST_F(DashboardModelTest, FollowsTheHelper) {
    EXPECT_FALSE(model.helperMissing());
    QSignalSpy changed(&model, &DashboardModel::helperMissingChanged);
    machine.helper().setState(HelperState::unreachable);
    EXPECT_EQ(changed.size(), 0);
    machine.helper().setState(HelperState::notInstalled);
    EXPECT_TRUE(model.helperMissing());
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(DashboardModelTest, KeepsTheRowsOfFansThatStay) {
    machine.ingest({sampleAt(0, 50, 50, {2000, 2100})});
    ASSERT_EQ(model.fans()->rowCount(), 2);
    EXPECT_EQ(fan(0, FanGaugeRows::NameRole), localized("shared.fan.left"));
    EXPECT_EQ(fan(1, FanGaugeRows::IsDashedRole), true);

    QSignalSpy changed(model.fans(), &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(model.fans(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(model.fans(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(model.fans(), &QAbstractItemModel::modelReset);
    QSignalSpy several(model.fans(), &FanGaugeRows::hasSeveralChanged);
    // 2100.4 reads and turns as 2100 does.
    machine.ingest({sampleAt(2, 50, 50, {2050, 2100.4})});
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(fan(0, FanGaugeRows::ReadoutRole), u"2050"_s);
    EXPECT_EQ(inserted.size() + removed.size() + reset.size() + several.size(), 0);

    machine.ingest({sampleAt(4, 50, 50, {2050})});
    EXPECT_FALSE(model.fans()->hasSeveral());
    EXPECT_EQ(fan(0, FanGaugeRows::NameRole), localized("shared.fan.numbered").arg(1));
    machine.ingest({sampleAt(6, 50, 50, {2050, 2100})});
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_EQ(several.size(), 2);

    TelemetrySample other = sampleAt(8, 50, 50, {2050, 2100});
    other.fans.erase(other.fans.begin());
    machine.ingest({other});
    ASSERT_EQ(model.fans()->rowCount(), 1);
    EXPECT_EQ(fan(0, FanGaugeRows::NameRole), localized("shared.fan.numbered").arg(2));
}

TEST_F(DashboardModelTest, ShowsAverageSmoothedMaximumAndPeak) {
    machine.ingest({sampleAt(0, 60, 50, {2000})});
    machine.ingest({sampleAt(2, 50, 50, {2000})});
    QSignalSpy gpu(&model, &DashboardModel::gpuChanged);
    QSignalSpy cpu(&model, &DashboardModel::cpuChanged);
    machine.ingest({sampleAt(4, 50, 50, {2000})});
    EXPECT_EQ(cpu.size(), 1);
    EXPECT_EQ(gpu.size(), 0);
    const auto text = [](const char* key, double celsius) {
        return localized(key).arg(QLocale().toString(celsius, 'f', 1));
    };
    EXPECT_EQ(model.cpu().title, localized("dashboard.temperature.cpuTitle"));
    EXPECT_EQ(model.cpu().average, text("gauge.readout.degrees", 43.75));
    EXPECT_EQ(model.cpu().hottestCore, text("dashboard.temperature.hottestCoreCaption", 53.6));
    EXPECT_EQ(model.cpu().sessionPeak, text("dashboard.temperature.sessionPeak", 60));
    EXPECT_EQ(model.gpu().average, text("gauge.readout.degrees", 46.5));
    EXPECT_EQ(model.gpu().sessionPeak, text("dashboard.temperature.sessionPeak", 50));
}

TEST_F(DashboardModelTest, DrawsLinesFromTwoSamplesOn) {
    machine.ingest({sampleAt(0, 60, 50, {2000})});
    EXPECT_EQ(model.state(), State::Content);
    EXPECT_FALSE(model.hasHistory());
    machine.ingest({sampleAt(2, 62, 50, {2100})});
    ASSERT_TRUE(model.hasHistory());
    ASSERT_EQ(model.temperatures().series.size(), 2);
    EXPECT_EQ(model.temperatures().series[0].points.last(), QPointF(0, 62));
    EXPECT_TRUE(model.temperatures().series[0].isFilled);
    EXPECT_EQ(model.fanSpeeds().series[0].points.last(), QPointF(0, 2100));
    EXPECT_EQ(model.windowCaption(), localized("dashboard.history.windowLastMinute"));
    machine.ingest(realisticSamples(900, 1));
    EXPECT_EQ(model.temperatures().series[0].points.size(), 226);
}

} // namespace
} // namespace kestrowind
