#include "Core/AlertNotifier.h"
#include "Core/AppState.h"
#include "Core/LocalizedText.h"
#include "Core/PreviewHelperClient.h"
#include "Platform/Notifications.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QTest>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double none = 0;
constexpr double hot = 101;
constexpr double cold = 60;

AlertRules::TimePoint at(double seconds) {
    // Far from the beginning of time, so that a clock can be set back.
    return AlertRules::TimePoint(std::chrono::milliseconds(std::llround(seconds * 1000)) +
                                 std::chrono::hours(24 * 365));
}

using Work = AlertRules::Helper::Work;

/// One sample: when, how hot, what the first fan does, and how the helper does.
struct Moment {
    double seconds;
    double hottest = none;
    double target = none;
    double actual = none;
    Work helper = Work::done;
};

/// The seconds of the samples that alert; below zero when one is over.
std::vector<double> alertTimes(const std::vector<Moment>& moments,
                               const AlertRules::Choice& choice = {}) {
    AlertRules rules;
    std::vector<double> times;
    for (const Moment& moment : moments) {
        const TelemetrySample sample{
            .timestamp = at(moment.seconds),
            .temperatures = {.cpuMax = moment.hottest, .hottest = moment.hottest},
            .fans = {{.index = 0, .actualRPM = moment.actual, .targetRPM = moment.target}}};
        for (const Alert& alert : rules.take(sample, {moment.helper}, choice))
            times.push_back(alert.isOver ? -moment.seconds : moment.seconds);
    }
    return times;
}

/// Samples every two seconds from the first to the last second.
std::vector<Moment> every2s(double first, double last, const Moment& like) {
    std::vector<Moment> moments;
    for (double seconds = first; seconds <= last; seconds += 2) {
        moments.push_back(like);
        moments.back().seconds = seconds;
    }
    return moments;
}

std::vector<Moment> operator+(std::vector<Moment> first, const std::vector<Moment>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(AlertRules, TellsOfHeatThatStays) {
    const Moment burning{.seconds = 0, .hottest = hot};
    const Moment calm{.seconds = 0, .hottest = cold};
    const std::vector<Moment> tenSeconds = every2s(0, 10, burning);
    struct Row {
        const char* what;
        std::vector<Moment> moments;
        std::vector<double> told;
    };
    for (const auto& [what, moments, told] : {
             Row{"at ten seconds, not before", every2s(0, 30, burning), {10}},
             Row{"at 100 degrees it is not too hot",
                 every2s(0, 30, {.seconds = 0, .hottest = 100}),
                 {}},
             Row{"no number", every2s(0, 30, {.seconds = 0, .hottest = std::nan("")}), {}},
             Row{"one cool sample begins it anew",
                 every2s(0, 8, burning) + every2s(10, 10, calm) + every2s(12, 30, burning),
                 {22}},
             Row{"a gap of five seconds", every2s(0, 4, burning) + every2s(9, 20, burning), {11}},
             Row{"no longer one, a sleep for instance",
                 every2s(0, 4, burning) + every2s(9.1, 20, burning),
                 {19.1}},
             Row{"two at the same time", every2s(0, 4, burning) + every2s(4, 20, burning), {10}},
             Row{"it comes back within the hour, and after it",
                 tenSeconds + every2s(1000, 1030, burning) + every2s(3700, 3730, burning),
                 {10, 3710}},
             Row{"it stays", every2s(0, 7300, burning), {10, 3610, 7210}},
             Row{"the clock is set back meanwhile",
                 every2s(0, 8, burning) + every2s(-500, -480, burning),
                 {-490}},
             Row{"and must not stretch the silence",
                 tenSeconds + every2s(-80'000, -76'000, burning),
                 {10, -76'400}},
         })
        EXPECT_EQ(alertTimes(moments), told) << what;
}

TEST(AlertRules, TellsOfAFanThatShouldTurn) {
    struct Row {
        const char* what;
        Moment like;
        std::vector<double> told;
    };
    for (const auto& [what, like, told] : {
             Row{"stands", {.seconds = 0, .target = 2000, .actual = 0}, {10}},
             Row{"creeps", {.seconds = 0, .target = 2000, .actual = 59}, {10}},
             Row{"is parked", {.seconds = 0, .target = 0, .actual = 0}, {}},
             Row{"turns once a second", {.seconds = 0, .target = 2000, .actual = 60}, {}},
             Row{"no numbers", {.seconds = 0, .target = std::nan(""), .actual = std::nan("")}, {}},
         })
        EXPECT_EQ(alertTimes(every2s(0, 30, like)), told) << what;

    // Each fan for itself; one that cannot be read for a moment is not forgotten.
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

TEST(AlertRules, TellsOfAFailingHelperAtOnceUntilItWorksAgain) {
    const auto like = [](double first, double last, Work helper) {
        return every2s(first, last, {.seconds = 0, .helper = helper});
    };
    EXPECT_THAT(alertTimes(like(0, 20, Work::failing) + like(22, 30, Work::pending) +
                           like(32, 40, Work::failing) + like(42, 50, Work::done) +
                           like(52, 60, Work::failing) + like(62, 70, Work::done)),
                ElementsAre(0, -42, 52, -62));
    EXPECT_THAT(alertTimes(like(0, 3700, Work::failing)), ElementsAre(0, 3600));
}

TEST(AlertRules, TellsOnlyOfWhatIsWanted) {
    const std::vector<Moment> all =
        every2s(0, 20, {.seconds = 0, .hottest = hot, .target = 900, .helper = Work::failing});
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
