#include "Core/AppState.h"
#include "Core/ControlArithmetic.h"
#include "Core/ControlEngine.h"
#include "Core/PresetControlState.h"
#include "Core/PresetStore.h"
#include "Core/PreviewHelperClient.h"
#include "Core/TelemetryStore.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QCoroFuture>
#include <QElapsedTimer>
#include <QPromise>
#include <QTest>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Targets = HelperControlling::Targets;

SMCFanReading fan(int index, double minRPM, double maxRPM) {
    return {.index = index, .minRPM = minRPM, .maxRPM = maxRPM};
}

TEST(ControlArithmetic, RisesAtOnceAndFallsSlowly) {
    struct Row {
        double previous, measured;
        std::optional<double> elapsed;
        double expected;
    };
    const Row rows[] = {
        {0, 60, std::nullopt, 60},  {70, 60, 2, 69},     {70, 75, 2, 75},     {70, 60, 3600, 60},
        {70, 60, std::nullopt, 70}, {70, 69.5, 2, 69.5}, {70, 60, -3600, 70},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ControlArithmetic::smoothedTemperature(row.previous, row.measured, row.elapsed),
                  row.expected)
            << row.previous << " " << row.measured;
}

TEST(ControlArithmetic, TurnsDemandIntoSpeed) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    struct Row {
        double percent, minRPM, maxRPM, expected;
    };
    const Row rows[] = {
        {40, 1200, 6000, 3120}, {100, 1000, 1000, 0}, {150, 1200, 6000, 6000}, {0, 1200, 6000, 0},
        {30, 1350, 5900, 2715}, {50, 0, 1, 1},        {-5, 1200, 6000, 0},     {50, nan, 6000, 0},
        {50, 1200, nan, 0},     {50, -inf, 6000, 0},  {50, 1200, inf, 0},      {50, 1200, 3e38, 0},
        {10, -9000, 6000, 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ControlArithmetic::target(row.percent, fan(0, row.minRPM, row.maxRPM)),
                  row.expected)
            << row.percent << " of " << row.minRPM << " to " << row.maxRPM;
    const SMCFanReading fans[] = {fan(0, 1000, 2000), fan(1, 1000, 3000)};
    EXPECT_EQ(ControlArithmetic::targets({0, 30, 50}, fans), std::vector<double>({0, 1600}));

    const auto cool = FanPreset::builtIns(1)[0];
    EXPECT_EQ(ControlArithmetic::requestedPercents(cool, 45, 10, 2), QList<double>({15, 15}));
    EXPECT_EQ(ControlArithmetic::requestedPercents(cool, 45, 20, 2), QList<double>({20, 20}));
    EXPECT_EQ(ControlArithmetic::requestedPercents(std::nullopt, 45, 0, 2), QList<double>({0, 0}));
}

/// A helper that writes down what it is told, and answers when the test lets it.
class RecordingHelper final : public PreviewHelperClient {
public:
    QStringList log;
    std::optional<Targets> answer = Targets{1};
    std::shared_ptr<QPromise<void>> gate; ///< when set, setTargets waits for it

    QCoro::Task<std::optional<Targets>> setTargets(Targets targets) override {
        QStringList numbers;
        for (const double target : targets)
            numbers.append(QString::number(target));
        log.append(u"set "_s + numbers.join(u' '));
        const auto reply = answer;
        if (const auto waiting = gate)
            co_await waiting->future();
        co_return reply;
    }
    QCoro::Task<void> releaseControl() override {
        log.append(u"release"_s);
        co_return;
    }
    QCoro::Task<std::optional<HelperStatus>> fetchStatus() override {
        log.append(u"status"_s);
        co_return std::nullopt;
    }
    QStringList takeLog() { return std::exchange(log, {}); }
};

class ControlEngineTest : public testing::Test {
protected:
    void sample(double celsius, std::vector<SMCFanReading> fans) {
        clock += 2s;
        telemetry.ingest(
            {.timestamp = clock,
             .temperatures = {.cpuAverage = celsius, .cpuMax = celsius, .hottest = celsius},
             .fans = std::move(fans)});
    }

    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    TelemetryStore telemetry{*defaults, [] { return std::make_shared<SimulatedSMC>(); }};
    PresetStore presets{2, *defaults, {.folder = home.path()}};
    RecordingHelper helper;
    std::chrono::system_clock::time_point clock;
    std::unique_ptr<ControlEngine> engine =
        std::make_unique<ControlEngine>(telemetry, presets, helper, [this] { return clock; });
    const std::vector<SMCFanReading> twoFans{fan(0, 1000, 2000), fan(1, 1000, 3000)};
};

TEST_F(ControlEngineTest, DrivesTheFansByTheActivePresetAndHandsThemBack) {
    sample(45, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList{u"status"_s});
    EXPECT_FALSE(engine->isOverriding());

    presets.setActivePresetID(FanPreset::coolID);
    helper.answer = Targets{1150, 1300};
    sample(45, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList({u"set 1150 1300"_s, u"status"_s}));
    EXPECT_EQ(engine->requestedPercents(), QList<double>({15, 15}));
    EXPECT_EQ(engine->effectiveTargets(), Targets({1150, 1300}));
    EXPECT_TRUE(engine->isOverriding());

    // Two seconds later the curve still sees 44 degrees of the 45 there were.
    sample(30, twoFans);
    EXPECT_EQ(engine->smoothedTemperature(), 44);
    helper.takeLog();

    presets.setActivePresetID(std::nullopt);
    sample(30, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList({u"release"_s, u"status"_s}));
    EXPECT_FALSE(engine->isOverriding());
    EXPECT_TRUE(engine->effectiveTargets().empty());
    sample(30, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList{u"status"_s}) << "released once is enough";
}

TEST_F(ControlEngineTest, DoesNotPushWithoutFansOrHelper) {
    engine->setQuickBoostPercent(50);
    sample(50, twoFans);
    EXPECT_TRUE(engine->isOverriding());
    helper.takeLog();
    sample(50, {});
    EXPECT_FALSE(engine->isOverriding());
    EXPECT_TRUE(engine->requestedPercents().isEmpty());
    helper.setState(HelperState::notInstalled);
    sample(50, twoFans);
    EXPECT_TRUE(helper.takeLog().isEmpty());
    helper.setState(HelperState::unreachable);
    sample(50, twoFans);
    EXPECT_EQ(helper.takeLog().size(), 2);
}

TEST_F(ControlEngineTest, StopsOverridingWhenTheHelperAppliesNothing) {
    engine->setQuickBoostPercent(50);
    for (const std::optional<Targets>& answer : {std::optional<Targets>(), {Targets()}}) {
        helper.answer = Targets{1500, 2000};
        sample(50, twoFans);
        EXPECT_TRUE(engine->isOverriding());
        helper.answer = answer;
        sample(50, twoFans);
        EXPECT_FALSE(engine->isOverriding());
        EXPECT_TRUE(engine->effectiveTargets().empty());
    }
}

TEST_F(ControlEngineTest, PushesOnceAfterABurstOfChanges) {
    sample(50, twoFans);
    helper.takeLog();
    QElapsedTimer timer;
    for (int i = 1; i <= 3; ++i) {
        QTest::qWait(i == 1 ? 0 : 50);
        timer.start();
        engine->setQuickBoostPercent(10 * i);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return !helper.log.isEmpty(); }));
    EXPECT_GE(timer.elapsed(), 119);
    QTest::qWait(150);
    EXPECT_EQ(helper.takeLog(), QStringList({u"set 1300 1600"_s, u"status"_s}));
}

TEST_F(ControlEngineTest, ShutsDownWithoutThePendingPush) {
    sample(50, twoFans);
    engine->setQuickBoostPercent(30);
    helper.takeLog();
    QCoro::waitFor(engine->shutDown());
    QTest::qWait(150);
    sample(90, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList{u"release"_s});
    EXPECT_FALSE(engine->isOverriding());
}

TEST_F(ControlEngineTest, MayGoWhileACallIsUnderWay) {
    sample(50, twoFans);
    engine->setQuickBoostPercent(30);
    helper.gate = std::make_shared<QPromise<void>>();
    helper.gate->start();
    sample(50, twoFans);
    helper.takeLog();
    engine.reset();
    helper.gate->finish();
    QTest::qWait(20);
    EXPECT_TRUE(helper.takeLog().isEmpty()) << "a push without its engine goes no further";
    sample(50, twoFans);
    EXPECT_TRUE(helper.takeLog().isEmpty());
}

TEST(PresetControlState, TheFirstFactThatAppliesWins) {
    using Kind = PresetControlState::Kind;
    using Phase = HelperControlPhase;
    struct Row {
        HelperState helper;
        Phase phase;
        bool boosting;
        Kind kind;
        QByteArray key;
        bool inProgress;
    };
    const Row rows[] = {
        {HelperState::notInstalled, Phase::failed, true, Kind::unavailable,
         "mainWindow.presetBar.helperMissing", false},
        {HelperState::installed, Phase::failed, true, Kind::switchable,
         "mainWindow.presetBar.hardwareFailure", false},
        {HelperState::unreachable, Phase::unlocking, true, Kind::busy, "shared.mode.startingBoost",
         true},
        {HelperState::installed, Phase::controlling, true, Kind::switchable, "shared.mode.boosting",
         false},
        {HelperState::installed, Phase::idle, false, Kind::switchable, "", false},
    };
    for (const Row& row : rows) {
        const auto state = PresetControlStateResolver::state(row.helper, row.phase, row.boosting);
        EXPECT_EQ(state.kind, row.kind) << row.key.constData();
        EXPECT_EQ(state.status ? state.status->text.key : QByteArray(), row.key);
        EXPECT_EQ(state.status && state.status->isInProgress, row.inProgress);
    }
}

TEST_F(ControlEngineTest, CountsAsBoostingOnlyWhileTheHelperApplies) {
    AppState state(std::make_unique<TelemetryStore>(
                       *defaults, [] { return std::make_shared<SimulatedSMC>(); }),
                   std::make_unique<PreviewHelperClient>(), nullptr, std::move(engine));
    state.engine().setQuickBoostPercent(30);
    helper.answer = std::nullopt;
    sample(50, twoFans);
    EXPECT_EQ(ActivePresetState::current(state), PresetControlState{});
    helper.answer = Targets{1300, 1600};
    sample(50, twoFans);
    EXPECT_EQ(ActivePresetState::current(state).status->symbolName, u"bolt.fill"_s);
}

} // namespace
} // namespace kestrowind
