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
             Row{"one sample may be missing",
                 every2s(0, 4, burning) + every2s(8, 20, burning),
                 {10}},
             Row{"a sleep does not count",
                 every2s(0, 4, burning) + every2s(3600, 3620, burning),
                 {3610}},
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
             Row{"turns", {.seconds = 0, .target = 2000, .actual = 1200}, {}},
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

TEST(AlertNotifier, PostsWhatTheUserWantsToHear) {
    const TestHome home;
    const auto defaults = home.defaults();
    registerAlertDefaults(*defaults);
    auto telemetry = std::make_unique<TelemetryStore>(*defaults, SMCUserClientFactory());
    auto presets =
        std::make_unique<PresetStore>(2, *defaults, PresetStore::Storage{.folder = home.path()});
    auto* helper = new PreviewHelperClient;
    auto engine = std::make_unique<ControlEngine>(*telemetry, *presets, *helper,
                                                  &std::chrono::system_clock::now,
                                                  std::chrono::milliseconds(50));
    AppState state(std::move(telemetry), std::unique_ptr<HelperControlling>(helper),
                   std::move(presets), std::move(engine));
    NotedNotifications notifications;
    double seconds = 0;
    std::uint8_t mode = 0;
    const auto sample = [&](double hottest = cold, double target = 0) {
        state.telemetry().ingest({.timestamp = at(seconds),
                                  .temperatures = {.cpuMax = hottest, .hottest = hottest},
                                  .fans = {{.index = 0, .actualRPM = 3000, .modeRaw = mode},
                                           {.index = 1, .targetRPM = target}}});
        seconds += 2;
    };
    const auto fail = [&](std::optional<std::string> reason) {
        HelperStatus status;
        status.phase = HelperControlPhase::failed;
        status.lastError = std::move(reason);
        helper->setLastStatus(status);
    };
    {
        const AlertNotifier notifier(state, *defaults, notifications);
        fail("a\nreason " + std::string(500, 'x'));
        helper->setState(HelperState::unreachable);
        sample();
        EXPECT_THAT(notifications.shown, IsEmpty()) << "its last word is old";
        helper->setState(HelperState::installed);
        sample();
        ASSERT_EQ(notifications.shown.size(), 1);
        EXPECT_TRUE(notifications.shown.front().startsWith(
            u"helper|The fans cannot be controlled|The helper cannot drive the fans: a reason xxx"_s));
        EXPECT_LT(notifications.shown.front().size(), 300);
        notifications.shown.clear();

        defaults->setBoolean(alertKey(AlertKind::overheating), false);
        for (int i = 0; i < 10; ++i)
            sample(hot + 3.6, 1499.6);
        defaults->setBoolean(alertKey(AlertKind::overheating), true);
        for (int i = 0; i < 5; ++i)
            sample(hot + 3.6, 1499.6);
        EXPECT_EQ(notifications.shown.size(), 1) << "the heat counts from when it is wanted";
        sample(hot + 3.6, 1499.6);
        ASSERT_EQ(notifications.shown.size(), 2);
        EXPECT_TRUE(notifications.shown.front().startsWith(
            u"fan-1|Right fan stands still|It should be turning at 1500 rpm."_s));
        EXPECT_TRUE(notifications.shown.back().startsWith(u"heat|The Mac is very hot|"_s));
        EXPECT_TRUE(notifications.shown.back().contains(u"105"_s));
        notifications.shown.clear();

        // The helper, which never answers, matters once it is to do something or has left a fan.
        const ControlWatch& watch = state.engine().watch();
        helper->setLastStatus(HelperStatus());
        sample();
        EXPECT_EQ(notifications.shown, QStringList{u"no helper"_s});
        const auto isDenied = [&] {
            if (!watch.isDenied())
                sample();
            return watch.isDenied();
        };
        ASSERT_TRUE(QTest::qWaitFor(isDenied));
        sample();
        EXPECT_EQ(notifications.shown.size(), 1);
        mode = 1;
        sample();
        ASSERT_EQ(notifications.shown.size(), 2);
        EXPECT_TRUE(notifications.shown.back().startsWith(u"helper|The fans cannot be"_s));
        EXPECT_TRUE(notifications.shown.back().contains(u"restart the Mac"_s));
        helper->setState(HelperState::notInstalled);
        sample();
        EXPECT_EQ(notifications.shown.size(), 2) << "it left a fan";
        mode = 0;
        sample();
        EXPECT_EQ(notifications.shown.back(), u"no helper"_s);
        helper->setState(HelperState::installed);
        state.engine().setQuickBoostPercent(50);
        ASSERT_TRUE(QTest::qWaitFor(isDenied));
        EXPECT_EQ(notifications.shown.size(), 4) << "without another sample";
        QCoro::waitFor(state.engine().shutDown());
        EXPECT_EQ(notifications.shown.size(), 4) << "quitting gives nothing back";
        notifications.shown.clear();
    }
    seconds += 7200;
    sample();
    EXPECT_THAT(notifications.shown, IsEmpty()) << "nobody is listening any more";
}

} // namespace
} // namespace kestrowind
