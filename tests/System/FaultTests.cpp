#include "Core/ControlWatch.h"
#include "System/RunningApp.h"

#include <QElapsedTimer>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;

/// The application drives the fans.
class Faults : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.waitForPhase("controlling"));
        ASSERT_TRUE(waitUntil([this] { return modes.areAllManual(); }));
    }
    void expectGoodEnd(RunningApp& last) {
        last.send(SIGTERM);
        EXPECT_EQ(last.waitForEnd(3s), 0);
        EXPECT_TRUE(modes.areAllSystem());
    }
    bool isHelper(const char* state, std::optional<bool> isOverriding = {}) {
        return app.waitFor([&](const json& reading) {
            return reading["helperState"] == state &&
                   (!isOverriding || reading["isOverriding"] == *isOverriding);
        });
    }

    BootedMac mac{quickMac};
    FanModes modes{mac};
    RunningApp app{mac, fullSpeed};
};

TEST_F(Faults, AfterASleepItReadsAndControlsAgain) {
    const auto helper = mac.status()["helper"]["pid"].get<pid_t>();
    const auto kernel = static_cast<pid_t>(mac.process().processId());
    for (const pid_t process : {helper, kernel})
        ::kill(process, SIGSTOP);
    app.send(SIGSTOP);
    // Longer than the helper's patience and than any call's.
    std::this_thread::sleep_for(6500ms);
    QElapsedTimer sinceWaking;
    sinceWaking.start();
    ::kill(kernel, SIGCONT);
    ::kill(helper, SIGCONT);
    app.send(SIGCONT);
    const auto before = app.readings().size();
    EXPECT_TRUE(app.waitFor([](const json&) { return true; }, 5s));
    EXPECT_GT(app.readings().size(), before);
    EXPECT_TRUE(app.waitFor(
        [](const json& reading) {
            return reading["isOverriding"] == true && reading["phase"] == "controlling";
        },
        5s));
    EXPECT_TRUE(waitUntil([&] { return modes.areAllManual(); }));
    EXPECT_LT(sinceWaking.elapsed(), 5000);
    expectGoodEnd(app);
}

TEST_F(Faults, AFrozenApplicationLosesTheFansUntilItGoesOn) {
    QElapsedTimer timer;
    timer.start();
    app.send(SIGSTOP);
    ASSERT_TRUE(waitUntil([this] { return modes.areAllSystem(); }));
    // Up to two seconds had passed since its last word.
    EXPECT_GT(timer.elapsed(), 3500);
    EXPECT_LT(timer.elapsed(), 6500);
    app.send(SIGCONT);
    EXPECT_TRUE(waitUntil([this] { return modes.areAllManual(); }));
}

TEST_F(Faults, ACopyThatStartsWhileAnotherQuitsTakesOver) {
    // Quitting takes two replies, so that the second copy finds the first one in the midst of it.
    ASSERT_EQ(mac.control("helper late 600").status, 0);
    app.send(SIGTERM);
    ASSERT_TRUE(waitUntil([this] { return modes.areAllSystem(); }));
    RunningApp second(mac, fullSpeed);
    EXPECT_EQ(app.waitForEnd(4s), 0) << "it ends of its own accord";
    ASSERT_EQ(mac.control("helper normal").status, 0);
    EXPECT_TRUE(second.waitForPhase("controlling"));
    EXPECT_TRUE(modes.areAllManual());
    expectGoodEnd(second);
}

TEST_F(Faults, SaysWhenAFrozenHelperLeavesTheFansToNobody) {
    const auto helper = mac.status()["helper"]["pid"].get<pid_t>();
    ::kill(helper, SIGSTOP);
    const auto isDenied = [](const json& reading) { return reading["isDenied"] == true; };
    // The next push, the patience, and the next reading.
    EXPECT_TRUE(app.waitFor(isDenied, 2s + ControlWatch::defaultPatience + 2s + 1s));
    EXPECT_TRUE(modes.areAllManual()) << "nobody can hand them back";
    ::kill(helper, SIGCONT);
    EXPECT_TRUE(app.waitFor([&](const json& reading) { return !isDenied(reading); }));
    expectGoodEnd(app);
    EXPECT_FALSE(isDenied(app.readings().front()));
}

TEST_F(Faults, ControlsAgainAfterTheHelperWasKilledOrRefusedByLaunchd) {
    ASSERT_EQ(mac.control("helper kill").status, 0);
    EXPECT_TRUE(waitUntil([this] { return modes.areAllSystem(); }));
    EXPECT_TRUE(waitUntil([this] { return modes.areAllManual(); }, 2500ms)) << "with the next push";
    EXPECT_EQ(mac.status()["helper"]["starts"], 2);
    EXPECT_TRUE(std::ranges::none_of(app.readings(), [](const json& reading) {
        return reading["isDenied"] == true;
    })) << "a helper that comes back is no matter";

    ASSERT_EQ(
        mac.control({u"bootout"_s, QString::fromLatin1(HelperConstants::machServiceName)}).status,
        0);
    EXPECT_TRUE(modes.areAllSystem()) << "a helper that is ended hands the fans back";
    ASSERT_TRUE(isHelper("unreachable", false));
    const auto job = SimulatedMac::systemPath(mac.root(), HelperConstants::daemonPlistPath);
    ASSERT_EQ(mac.control({u"bootstrap"_s, QString::fromStdString(job.string())}).status, 0);
    EXPECT_TRUE(isHelper("installed", true));
    expectGoodEnd(app);
}

} // namespace
} // namespace kestrowind
