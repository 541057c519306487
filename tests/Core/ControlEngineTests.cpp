#include "Core/ControlArithmetic.h"
#include "Core/ControlEngine.h"
#include "Core/ControlState.h"
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
    for (const auto& [previous, measured, elapsed, expected] : rows)
        EXPECT_EQ(ControlArithmetic::smoothedTemperature(previous, measured, elapsed), expected)
            << previous << " " << measured;
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
    for (const auto& [percent, minRPM, maxRPM, expected] : rows)
        EXPECT_EQ(ControlArithmetic::target(percent, fan(0, minRPM, maxRPM)), expected)
            << percent << " of " << minRPM << " to " << maxRPM;
    const SMCFanReading fans[] = {fan(0, nan, 2000), fan(1, 1000, 3000)};
    EXPECT_EQ(ControlArithmetic::targets({30, 30, 50}, fans), std::vector<double>({0, 1600}));

    const auto cool = FanPreset::builtIns(1)[0];
    EXPECT_EQ(ControlArithmetic::requestedPercents(cool, 45, 10, 2), QList<double>({15, 15}));
    EXPECT_EQ(ControlArithmetic::requestedPercents(cool, 45, 20, 2), QList<double>({20, 20}));
}

/// A helper that writes down what it is told, and answers when the test lets it.
class RecordingHelper final : public PreviewHelperClient {
public:
    QStringList log;
    std::optional<Targets> answer = Targets{1};
    bool answersStatus = false;
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
        co_return answersStatus ? std::optional(HelperStatus()) : std::nullopt;
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
    std::unique_ptr<ControlEngine> engine = std::make_unique<ControlEngine>(
        telemetry, presets, helper, [this] { return clock; }, 20ms);
    const std::vector<SMCFanReading> twoFans{fan(0, 1000, 2000), fan(1, 1000, 3000)};
};

TEST_F(ControlEngineTest, DrivesTheFansByTheActivePresetAndHandsThemBack) {
    sample(45, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList{u"status"_s});
    EXPECT_FALSE(engine->isOverriding());
    int changes = 0;
    for (const auto signal :
         {&ControlEngine::requestedPercentsChanged, &ControlEngine::effectiveTargetsChanged})
        QObject::connect(engine.get(), signal, &telemetry, [&] { ++changes; });

    presets.setActivePresetID(FanPreset::coolID);
    helper.answer = Targets{1150, 1300};
    sample(45, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList({u"set 1150 1300"_s, u"status"_s}));
    EXPECT_EQ(engine->requestedPercents(), QList<double>({15, 15}));
    EXPECT_EQ(engine->effectiveTargets(), Targets({1150, 1300}));
    EXPECT_TRUE(engine->isOverriding());
    EXPECT_EQ(changes, 2);
    sample(45, twoFans);
    EXPECT_EQ(changes, 2) << "nothing new";

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

TEST_F(ControlEngineTest, DrivesNothingWithoutFansHelperOrAnswer) {
    struct Row {
        const char* what;
        HelperState state;
        std::optional<Targets> answer;
        std::vector<SMCFanReading> fans;
        qsizetype demands;
        bool isOverriding;
    };
    engine->setQuickBoostPercent(50);
    for (const auto& [what, state, answer, fans, demands, isOverriding] : {
             Row{"no fans", HelperState::installed, Targets{1}, {}, 0, false},
             Row{"a fan less", HelperState::installed, Targets{1}, {fan(0, 0, 9)}, 1, true},
             Row{"no helper", HelperState::notInstalled, Targets{1}, twoFans, 0, false},
             Row{"last call failed", HelperState::unreachable, Targets{1}, twoFans, 2, true},
             Row{"no answer", HelperState::installed, std::nullopt, twoFans, 2, false},
             Row{"applies nothing", HelperState::installed, Targets(), twoFans, 2, false},
         }) {
        helper.setState(HelperState::installed);
        helper.answer = Targets{1500, 2000};
        sample(50, twoFans);
        EXPECT_TRUE(engine->isOverriding());
        helper.takeLog();
        helper.setState(state);
        helper.answer = answer;
        sample(50, fans);
        EXPECT_EQ(engine->isOverriding(), isOverriding) << what;
        EXPECT_EQ(engine->isAtWork(), state != HelperState::notInstalled) << what;
        EXPECT_EQ(helper.takeLog().isEmpty(), demands == 0) << what;
        EXPECT_EQ(engine->requestedPercents().size(), demands) << what;
        EXPECT_TRUE(demands == 0 || engine->effectiveTargets() == answer.value_or(Targets()))
            << what;
    }
}

TEST_F(ControlEngineTest, KnowsWhenNothingIsDoneOfWhatItAsks) {
    struct Row {
        const char* what;
        double boost;
        std::optional<Targets> answer;
        bool answersStatus;
        bool isDenied;
    };
    const auto denies = [&] {
        sample(50, twoFans);
        return engine->watch().isDenied();
    };
    for (const auto& [what, boost, answer, answersStatus, isDenied] : {
             Row{"asked for nothing, silent", 0, {}, false, true},
             Row{"asked for nothing, answers", 0, {}, true, false},
             Row{"answers, and applies nothing", 50, {}, true, true},
             Row{"applies zeros", 50, Targets{0, 0}, true, true},
             Row{"applies, and tells no more", 50, Targets{0, 9}, false, false},
         }) {
        engine->setQuickBoostPercent(boost);
        helper.answer = answer;
        helper.answersStatus = answersStatus;
        EXPECT_EQ(QTest::qWaitFor(denies, 100), isDenied) << what;
        sample(50, {});
        EXPECT_FALSE(engine->watch().isDenied()) << "asked for nothing any more";
    }
    // Who asks for nothing meanwhile stood still itself.
    engine->setQuickBoostPercent(0);
    helper.answersStatus = false;
    sample(50, twoFans);
    QTest::qWait(60);
    EXPECT_FALSE(denies());
    EXPECT_TRUE(QTest::qWaitFor(denies, 100));

    ControlWatch watch(100ms);
    watch.expect();
    QTest::qWait(60);
    watch.clear();
    QElapsedTimer sinceExpected;
    sinceExpected.start();
    while (!watch.isDenied()) {
        watch.expect();
        QTest::qWait(10);
    }
    EXPECT_GE(sinceExpected.elapsed(), 99) << "the patience begins anew";
}

TEST_F(ControlEngineTest, PushesOnceAfterABurstOfChanges) {
    engine->pushSoon();
    QTest::qWait(150);
    EXPECT_TRUE(helper.takeLog().isEmpty()) << "nothing is known of the fans";
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

TEST_F(ControlEngineTest, ShutsDownWithoutThePendingPushAndMayGoWhileACallIsUnderWay) {
    sample(50, twoFans);
    engine->setQuickBoostPercent(30);
    helper.gate = std::make_shared<QPromise<void>>();
    helper.gate->start();
    sample(50, twoFans);
    helper.takeLog();
    engine->setQuickBoostPercent(40);
    QCoro::waitFor(engine->shutDown());
    QTest::qWait(150);
    sample(90, twoFans);
    EXPECT_EQ(helper.takeLog(), QStringList{u"release"_s});
    engine.reset();
    helper.gate->finish();
    QTest::qWait(20);
    sample(50, twoFans);
    EXPECT_TRUE(helper.takeLog().isEmpty()) << "a push without its engine goes no further";
}

TEST(PresetControlState, AFailureComesBeforeABoostAndLeavesPresetsSwitchable) {
    const auto state =
        PresetControlStateResolver::state(HelperState::installed, HelperControlPhase::failed, true);
    EXPECT_EQ(state.kind, PresetControlState::Kind::switchable);
    EXPECT_EQ(state.status->text.key, QByteArray("mainWindow.presetBar.hardwareFailure"));
}

TEST_F(ControlEngineTest, TheStateOfControlFollowsEachOfItsFacts) {
    const ControlState control(helper, *engine);
    int changes = 0;
    QObject::connect(&control, &ControlState::changed, &telemetry, [&] { ++changes; });
    EXPECT_EQ(control.facts(), ControlState::Facts{.helper = HelperState::installed});
    helper.setState(HelperState::unreachable);
    EXPECT_EQ(control.facts().helper, HelperState::unreachable);
    helper.setLastStatus(HelperStatus{.phase = HelperControlPhase::unlocking});
    EXPECT_TRUE(control.facts().isTakingControl());
    EXPECT_EQ(changes, 2);
    helper.answer = std::nullopt;
    engine->setQuickBoostPercent(30);
    sample(50, twoFans);
    EXPECT_EQ(changes, 2) << "boosting only while the helper applies it";
    helper.answer = Targets{1300, 1600};
    sample(50, twoFans);
    EXPECT_TRUE(control.facts().isQuickBoosting);
    engine->setQuickBoostPercent(0);
    EXPECT_FALSE(control.facts().isQuickBoosting);
    EXPECT_EQ(changes, 4);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        sample(50, twoFans);
        return control.facts().isDenied;
    }));
    EXPECT_EQ(changes, 5);
}

} // namespace
} // namespace kestrowind
