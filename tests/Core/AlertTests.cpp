#include "Core/AlertNotifier.h"
#include "Core/AppState.h"
#include "Core/LocalizedText.h"
#include "Core/PreviewHelperClient.h"
#include "Platform/Notifications.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double hot = 101;
constexpr double cold = 60;

using Work = AlertRules::Helper::Work;

AlertRules::TimePoint at(double seconds) {
    // Far from the beginning of time, so that a clock can be set back.
    return AlertRules::TimePoint(std::chrono::milliseconds(std::llround(seconds * 1000)) +
                                 std::chrono::hours(24 * 365));
}

using Work = AlertRules::Helper::Work;

/// Samples every two seconds from the first to the last second: how hot, what the first fan does,
/// and how the helper does.
struct Span {
    double first, last;
    double hottest = cold;
    double target = 0;
    double actual = 0;
    Work helper = Work::done;
};

/// The seconds of the samples that alert; below zero when one is over.
std::vector<double> alertTimes(const std::vector<Span>& spans,
                               const AlertRules::Choice& choice = {}) {
    AlertRules rules;
    std::vector<double> times;
    for (const Span& span : spans) {
        for (double seconds = span.first; seconds <= span.last; seconds += 2) {
            const TelemetrySample sample{
                .timestamp = at(seconds),
                .temperatures = {.cpuMax = span.hottest, .hottest = span.hottest},
                .fans = {{.index = 0, .actualRPM = span.actual, .targetRPM = span.target}}};
            for (const Alert& alert : rules.take(sample, {span.helper}, choice))
                times.push_back(alert.isOver ? -seconds : seconds);
        }
    }
    return times;
}

TEST(AlertRules, TellsOfHeatAndStandingFansThatStay) {
    const double nan = std::nan("");
    struct Row {
        const char* what;
        std::vector<Span> spans;
        std::vector<double> told;
    };
    for (const auto& [what, spans, told] : {
             Row{"at ten seconds, not before", {{0, 30, hot}}, {10}},
             Row{"at 100 degrees it is not too hot", {{0, 30, 100}}, {}},
             Row{"no temperature", {{0, 30, nan}}, {}},
             Row{"one cool sample begins it anew", {{0, 8, hot}, {10, 10}, {12, 30, hot}}, {22}},
             Row{"a gap of five seconds", {{0, 4, hot}, {9, 20, hot}}, {11}},
             Row{"no longer one, a sleep for instance", {{0, 4, hot}, {9.1, 20, hot}}, {19.1}},
             Row{"two at the same time", {{0, 4, hot}, {4, 20, hot}}, {10}},
             Row{"it comes back within the hour, and after it",
                 {{0, 10, hot}, {1000, 1030, hot}, {3700, 3730, hot}},
                 {10, 3710}},
             Row{"it stays", {{0, 7300, hot}}, {10, 3610, 7210}},
             Row{"the clock is set back meanwhile", {{0, 8, hot}, {-500, -480, hot}}, {-490}},
             Row{"and must not stretch the silence",
                 {{0, 10, hot}, {-80'000, -76'000, hot}},
                 {10, -76'400}},
             Row{"a fan stands", {{0, 30, cold, 2000, 0}}, {10}},
             Row{"it creeps", {{0, 30, cold, 2000, 59}}, {10}},
             Row{"it is parked", {{0, 30, cold, 0, 0}}, {}},
             Row{"it turns once a second", {{0, 30, cold, 2000, 60}}, {}},
             Row{"no speeds", {{0, 30, cold, nan, nan}}, {}},
         })
        EXPECT_EQ(alertTimes(spans), told) << what;
}

TEST(AlertRules, TellsOfEachFanForItselfAndForgetsNoneThatIsUnreadableForAMoment) {
    AlertRules rules;
    std::vector<std::pair<double, int>> told;
    for (double seconds = 0; seconds <= 40; seconds += 2) {
        TelemetrySample sample{.timestamp = at(seconds), .temperatures = {}, .fans = {}};
        if (seconds != 4)
            sample.fans.push_back({.index = 0, .actualRPM = 0, .targetRPM = 1500});
        sample.fans.push_back(
            {.index = 1, .actualRPM = seconds < 20 ? 900.0 : 0, .targetRPM = 900});
        for (const Alert& alert : rules.take(sample, {}, {})) {
            told.emplace_back(seconds, alert.fanIndex);
            EXPECT_EQ(alert.fanCount, 2);
            EXPECT_EQ(alert.value, alert.fanIndex == 0 ? 1500 : 900);
        }
    }
    EXPECT_THAT(told, ElementsAre(std::pair(10.0, 0), std::pair(30.0, 1)));
}

TEST(AlertRules, TellsOfAFailingHelperAtOnceUntilItWorksAgainAndOnlyOfWhatIsWanted) {
    const auto like = [](double first, double last, Work helper) {
        return Span{.first = first, .last = last, .helper = helper};
    };
    EXPECT_THAT(alertTimes({like(0, 20, Work::failing), like(22, 30, Work::pending),
                            like(32, 40, Work::failing), like(42, 50, Work::done),
                            like(52, 60, Work::failing), like(62, 70, Work::done)}),
                ElementsAre(0, -42, 52, -62));
    EXPECT_THAT(alertTimes({like(0, 3700, Work::failing)}), ElementsAre(0, 3600));

    const std::vector<Span> all{{0, 20, hot, 900, 0, Work::failing}};
    EXPECT_THAT(alertTimes(all), ElementsAre(0, 10, 10));
    EXPECT_THAT(alertTimes(all, {.helperFailed = false}), ElementsAre(10, 10));
    EXPECT_THAT(alertTimes(all, {.fanStandsStill = false}), ElementsAre(0, 10));
    EXPECT_THAT(alertTimes(all, {.overheating = false}), ElementsAre(0, 10));
}

class NotedNotifications final : public Notifications {
public:
    QStringList shown;
    void show(const Notification& notification) override {
        shown.append(notification.identifier + u'|' + notification.title + u'|' +
                     notification.body);
    }
    void withdraw(const QString& identifier) override { shown.append(u"no "_s + identifier); }
};

/// A Mac with two fans and a helper that never answers by itself.
class AlertNotifierTest : public testing::Test {
protected:
    AlertNotifierTest() {
        registerAlertDefaults(*defaults);
        auto telemetry = std::make_unique<TelemetryStore>(*defaults, SMCUserClientFactory());
        auto presets = std::make_unique<PresetStore>(2, *defaults,
                                                     PresetStore::Storage{.folder = home.path()});
        auto engine = std::make_unique<ControlEngine>(*telemetry, *presets, *helper,
                                                      &std::chrono::system_clock::now,
                                                      std::chrono::milliseconds(50));
        state = std::make_unique<AppState>(std::move(telemetry),
                                           std::unique_ptr<HelperControlling>(helper),
                                           std::move(presets), std::move(engine));
        notifier = std::make_unique<AlertNotifier>(*state, *defaults, notifications);
    }
    void sample(double hottest = cold, double target = 0) {
        state->telemetry().ingest(
            {.timestamp = at(seconds),
             .temperatures = {.cpuMax = hottest, .hottest = hottest},
             .fans = {{.actualRPM = 3000, .modeRaw = mode}, {.index = 1, .targetRPM = target}}});
        seconds += 2;
    }
    /// What is told since the last time, with so many more samples.
    QStringList told(int samples = 1, double hottest = cold, double target = 0) {
        for (; samples > 0; --samples)
            sample(hottest, target);
        return std::exchange(notifications.shown, {});
    }
    void say(HelperControlPhase phase, std::optional<std::string> error = {}) {
        helper->setLastStatus(HelperStatus{.phase = phase, .lastError = std::move(error)});
    }
    bool becomesDenied() {
        return QTest::qWaitFor([this] {
            if (!state->engine().watch().isDenied())
                sample();
            return state->engine().watch().isDenied();
        });
    }

    const TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    PreviewHelperClient* helper = new PreviewHelperClient;
    NotedNotifications notifications;
    std::unique_ptr<AppState> state;
    std::unique_ptr<AlertNotifier> notifier;
    double seconds = 0;
    std::uint8_t mode = 0;
};

TEST_F(AlertNotifierTest, PostsWhatTheUserWantsToHear) {
    const auto startsWith = [](const char16_t* text) {
        return testing::Truly([text](const QString& told) { return told.startsWith(text); });
    };
    say(HelperControlPhase::failed, "a\nreason " + std::string(500, 'x'));
    helper->setState(HelperState::unreachable);
    EXPECT_THAT(told(), IsEmpty()) << "its last word is old";
    helper->setState(HelperState::installed);
    const QStringList failure = told();
    EXPECT_THAT(failure, ElementsAre(startsWith(u"helper|The fans cannot be controlled|The helper "
                                                u"cannot drive the fans: a reason xxx")));
    EXPECT_LT(failure.join(u""_s).size(), 300);

    defaults->setBoolean(alertKey(AlertKind::overheating), false);
    EXPECT_THAT(
        told(10, hot + 3.6, 1499.6),
        ElementsAre(startsWith(u"fan-1|Right fan stands still|It should be turning at 1500 rpm.")));
    defaults->setBoolean(alertKey(AlertKind::overheating), true);
    EXPECT_THAT(told(5, hot + 3.6), IsEmpty()) << "the heat counts from when it is wanted";
    const QStringList heat = told(1, hot + 3.6);
    EXPECT_THAT(heat, ElementsAre(startsWith(u"heat|The Mac is very hot|")));
    EXPECT_TRUE(heat.join(u""_s).contains(u"105"_s));

    say(HelperControlPhase::unlocking);
    EXPECT_THAT(told(), IsEmpty()) << "it may come to either";
    say(HelperControlPhase::idle);
    EXPECT_EQ(told(), QStringList{u"no helper"_s});
}

TEST_F(AlertNotifierTest, TellsOfASilentHelperOnceItHasWorkOrHasLeftAFan) {
    ASSERT_TRUE(becomesDenied());
    EXPECT_THAT(told(), IsEmpty());
    mode = 1;
    const QStringList left = told();
    ASSERT_EQ(left.size(), 1);
    EXPECT_TRUE(left.front().contains(u"restart the Mac"_s));
    helper->setState(HelperState::notInstalled);
    EXPECT_THAT(told(), IsEmpty()) << "it left a fan";
    mode = 0;
    EXPECT_EQ(told(), QStringList{u"no helper"_s});
    helper->setState(HelperState::installed);
    state->engine().setQuickBoostPercent(50);
    ASSERT_TRUE(becomesDenied());
    EXPECT_EQ(told(0).size(), 1) << "without another sample";
    QCoro::waitFor(state->engine().shutDown());
    EXPECT_THAT(told(0), IsEmpty()) << "quitting gives nothing back";
    notifier.reset();
    seconds += 7200;
    EXPECT_THAT(told(), IsEmpty()) << "nobody is listening any more";
}

} // namespace
} // namespace kestrowind
