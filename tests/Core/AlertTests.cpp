#include "Core/AlertNotifier.h"
#include "Core/AppState.h"
#include "Core/LocalizedText.h"
#include "Core/PreviewHelperClient.h"
#include "Platform/Notifications.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

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

/// One sample: when, how hot, what the first fan does, and whether the helper has failed.
struct Moment {
    double seconds;
    double hottest = none;
    double target = none;
    double actual = none;
    bool hasFailed = false;
};

/// The seconds of the samples that alert.
std::vector<double> alertTimes(const std::vector<Moment>& moments,
                               const AlertRules::Choice& choice = {}) {
    AlertRules rules;
    std::vector<double> times;
    for (const Moment& moment : moments) {
        const TelemetrySample sample{
            .timestamp = at(moment.seconds),
            .temperatures = {.cpuMax = moment.hottest, .hottest = moment.hottest},
            .fans = {{.index = 0, .actualRPM = moment.actual, .targetRPM = moment.target}}};
        HelperStatus status;
        if (moment.hasFailed)
            status.phase = HelperControlPhase::failed;
        for (std::size_t alerts = rules.take(sample, status, choice).size(); alerts > 0; --alerts)
            times.push_back(moment.seconds);
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
        for (const Alert& alert : rules.take(sample, std::nullopt, {})) {
            told.emplace_back(seconds, alert.fanIndex);
            EXPECT_EQ(alert.fanCount, 2);
            EXPECT_EQ(alert.value, alert.fanIndex == 0 ? 1500 : 900);
        }
    }
    EXPECT_THAT(told, ElementsAre(std::pair(10.0, 0), std::pair(30.0, 1)));
}

TEST(AlertRules, TellsOfAFailedHelperAtOnceAndOnlyOfWhatIsWanted) {
    const std::vector<Moment> all =
        every2s(0, 20, {.seconds = 0, .hottest = hot, .target = 900, .hasFailed = true});
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
};

TEST(AlertNotifier, PostsWhatTheUserWantsToHear) {
    const TestHome home;
    const auto defaults = home.defaults();
    registerAlertDefaults(*defaults);
    auto* helper = new PreviewHelperClient;
    AppState state(std::make_unique<TelemetryStore>(*defaults, SMCUserClientFactory()),
                   std::unique_ptr<HelperControlling>(helper), nullptr, nullptr);
    NotedNotifications notifications;
    double seconds = 0;
    const auto sample = [&](double hottest = cold, double target = 0) {
        state.telemetry().ingest(
            {.timestamp = at(seconds),
             .temperatures = {.cpuMax = hottest, .hottest = hottest},
             .fans = {{.index = 0, .actualRPM = 3000}, {.index = 1, .targetRPM = target}}});
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
            u"helper|Fan control has failed|The helper cannot drive the fans: a reason xxx"_s));
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
    }
    seconds += 7200;
    sample();
    EXPECT_THAT(notifications.shown, IsEmpty()) << "nobody is listening any more";
}

} // namespace
} // namespace kestrowind
