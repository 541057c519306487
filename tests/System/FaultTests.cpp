#include "System/RunningApp.h"

#include <QElapsedTimer>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;

/// A machine that needs no unlocking, so that control is quick.
const QStringList quickMac{u"--installed"_s, u"--load"_s, u"90%"_s, u"--profile"_s,
                           u"desktop-1fan"_s};
const QStringList fullSpeed{u"-ActivatePreset"_s, u"Full Speed"_s};

TEST(Faults, AfterASleepItReadsAndControlsAgain) {
    BootedMac mac(quickMac);
    FanModes modes(mac);
    RunningApp app(mac, fullSpeed);
    ASSERT_TRUE(app.waitForPhase("controlling"));
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
    RecordProperty("milliseconds", static_cast<int>(sinceWaking.elapsed()));
    app.send(SIGTERM);
    EXPECT_EQ(app.waitForEnd(3s), 0);
    EXPECT_TRUE(modes.areAllSystem());
}

TEST(Faults, ACopyThatStartsWhileAnotherQuitsTakesOver) {
    const BootedMac mac(quickMac);
    FanModes modes(mac);
    RunningApp first(mac, fullSpeed);
    ASSERT_TRUE(first.waitForPhase("controlling"));
    // Quitting takes two replies, so that the second copy finds the first one in the midst of it.
    ASSERT_EQ(mac.control({u"helper"_s, u"late"_s, u"600"_s}).status, 0);
    first.send(SIGTERM);
    ASSERT_TRUE(waitUntil([&] { return modes.areAllSystem(); }));
    RunningApp second(mac, fullSpeed);
    EXPECT_EQ(first.waitForEnd(4s), 0) << "it ends of its own accord";
    ASSERT_EQ(mac.control({u"helper"_s, u"normal"_s}).status, 0);
    EXPECT_TRUE(second.waitForPhase("controlling"));
    EXPECT_TRUE(modes.areAllManual());
    second.send(SIGTERM);
    EXPECT_EQ(second.waitForEnd(3s), 0);
    EXPECT_TRUE(modes.areAllSystem());
}

TEST(Faults, LivesThroughALaunchdThatRefuses) {
    const BootedMac mac(quickMac);
    FanModes modes(mac);
    RunningApp app(mac, fullSpeed);
    ASSERT_TRUE(app.waitForPhase("controlling"));
    ASSERT_EQ(
        mac.control({u"bootout"_s, QString::fromLatin1(HelperConstants::machServiceName)}).status,
        0);
    EXPECT_TRUE(modes.areAllSystem()) << "a helper that is ended hands the fans back";
    EXPECT_TRUE(app.waitFor([](const json& reading) {
        return reading["helperState"] == "unreachable" && reading["isOverriding"] == false;
    }));
    const auto job = SimulatedMac::systemPath(mac.root(), HelperConstants::daemonPlistPath);
    ASSERT_EQ(mac.control({u"bootstrap"_s, QString::fromStdString(job.string())}).status, 0);
    EXPECT_TRUE(app.waitFor([](const json& reading) {
        return reading["helperState"] == "installed" && reading["isOverriding"] == true;
    }));
    app.send(SIGTERM);
    EXPECT_EQ(app.waitForEnd(3s), 0);
    EXPECT_TRUE(modes.areAllSystem());
}

} // namespace
} // namespace kestrowind
