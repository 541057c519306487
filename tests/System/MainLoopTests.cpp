#include "Support/SilentSocket.h"
#include "System/RunningApp.h"

#include <QElapsedTimer>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;
using testing::HasSubstr;

TEST(MainLoop, UnlocksDrivesCoolsAndHandsBack) {
    const BootedMac mac({u"--installed"_s, u"--load"_s, u"90%"_s});
    RunningApp app(mac, fullSpeed);
    ASSERT_TRUE(app.waitForPhase("unlocking"));
    const auto isAtMaximum = [](const json& reading) {
        return reading["phase"] == "controlling" &&
               std::ranges::all_of(reading["fans"], [](const json& fan) {
                   return fan["actualRPM"].get<double>() > 0.98 * fan["maxRPM"].get<double>();
               });
    };
    ASSERT_TRUE(app.waitFor(isAtMaximum));
    const json& first = app.readings().front();
    const json& last = app.readings().back();
    EXPECT_LT(last["cpuMax"].get<double>(), first["cpuMax"].get<double>() - 3);
    EXPECT_EQ(last["preset"], "Full Speed");
    EXPECT_EQ(last["isOverriding"], true);
    EXPECT_EQ(last["requestedPercents"], json({100, 100}));
    EXPECT_EQ(last["effectiveTargets"],
              json({last["fans"][0]["maxRPM"], last["fans"][1]["maxRPM"]}));

    app.send(SIGTERM);
    EXPECT_EQ(app.waitForEnd(3s), 0);
    FanModes modes(mac);
    EXPECT_TRUE(modes.areAllSystem());
    EXPECT_TRUE(waitUntil([&] { return mac.status()["helper"]["pid"].is_null(); }));
    EXPECT_EQ(mac.status()["helper"]["lastExit"], "exited with status 0");
}

TEST(MainLoop, GivesTheFansBackWhenTheApplicationDies) {
    const BootedMac mac(quickMac);
    FanModes modes(mac);
    // The best of three: on a busy computer any process may have to wait for its turn.
    qint64 fastest = std::numeric_limits<qint64>::max();
    for (int attempt = 0; attempt < 3 && fastest >= 100; ++attempt) {
        RunningApp app(mac, fullSpeed);
        ASSERT_TRUE(waitUntil([&] { return modes.areAllManual(); }));
        QElapsedTimer timer;
        timer.start();
        app.send(SIGKILL);
        ASSERT_TRUE(waitUntil([&] { return modes.areAllSystem(); }));
        fastest = std::min(fastest, timer.elapsed());
    }
    EXPECT_LT(fastest, 100);
}

TEST(MainLoop, EndsThoughTheHelperIsSilentOrTalksRubbish) {
    struct Run {
        const char* behaviour;
        const char* helperState;
        BootedMac mac{quickMac};
        RunningApp app{mac, fullSpeed};
        FanModes modes{mac};
    };
    // All at the same time, since each waits for the time-outs.
    Run runs[] = {{"helper silent", "installed"},
                  {"helper garbage", "unreachable"},
                  {"helper stop", "installed"}};
    for (Run& run : runs) {
        ASSERT_TRUE(waitUntil([&] { return run.modes.areAllManual(); }));
        ASSERT_EQ(run.mac.control(run.behaviour).status, 0);
    }
    for (Run& run : runs) {
        EXPECT_TRUE(run.app.waitFor([&](const json& reading) {
            return reading["isOverriding"] == false && reading["helperState"] == run.helperState;
        })) << run.behaviour;
        run.app.send(SIGTERM);
    }
    QElapsedTimer sinceLast;
    sinceLast.start();
    for (Run& run : runs) {
        EXPECT_EQ(run.app.waitForEnd(6500ms - std::chrono::milliseconds(sinceLast.elapsed())), 0)
            << run.behaviour << ": at most twice the time-out";
        run.mac.control("helper continue");
        EXPECT_TRUE(waitUntil([&] { return run.modes.areAllSystem(); }));
    }
}

TEST(MainLoop, GoesOnWithoutHelperFansOrSMC) {
    const BootedMac mac({u"--profile"_s, u"fanless"_s});
    RunningApp app(mac, {});
    ASSERT_TRUE(app.waitFor([](const json& reading) {
        return reading["fans"].empty() && reading["cpuMax"].get<double>() > 20 &&
               reading["helperState"] == "notInstalled" && reading["phase"].is_null() &&
               reading["preset"].is_null();
    }));
    mac.control("service none");
    RunningApp blind(mac, {});
    EXPECT_FALSE(blind.waitFor([](const json&) { return true; }, 500ms));
    blind.send(SIGINT);
    EXPECT_EQ(blind.waitForEnd(2s), 0);
}

TEST(MainLoop, StartsAndEndsThoughTheSessionBusIsSilent) {
    const BootedMac mac(quickMac);
    const SilentSocket bus;
    constexpr char variable[] = "DBUS_SESSION_BUS_ADDRESS";
    const QByteArray outer = qgetenv(variable);
    qputenv(variable, bus.busAddress());
    RunningApp app(mac, fullSpeed);
    qputenv(variable, outer);
    ASSERT_TRUE(app.waitForPhase("controlling"));
    app.send(SIGTERM);
    EXPECT_EQ(app.waitForEnd(2s), 0);
}

TEST(SingleInstance, TheNewestCopyWins) {
    const BootedMac mac(quickMac);
    const auto any = [](const json&) { return true; };
    RunningApp first(mac, fullSpeed);
    ASSERT_TRUE(first.waitForPhase("controlling"));
    RunningApp second(mac, fullSpeed);
    EXPECT_EQ(first.waitForEnd(2s), 0);
    ASSERT_TRUE(second.waitForPhase("controlling"));

    // One that does not listen is made to, after two seconds.
    second.send(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    RunningApp third(mac, fullSpeed);
    EXPECT_EQ(second.waitForEnd(5s), -1);
    EXPECT_GT(timer.elapsed(), 1900);
    EXPECT_LT(timer.elapsed(), 5000) << "it was not waited for in vain";
    EXPECT_TRUE(third.waitFor(any));

    // A copy in another Mac is none of its business, nor is one that only dumps.
    const BootedMac otherMac(quickMac);
    RunningApp other(otherMac, {});
    ASSERT_TRUE(other.waitFor(any));
    RunningApp dump(mac, {u"-DumpSMCKeys"_s});
    EXPECT_EQ(dump.waitForEnd(5s), 0);
    EXPECT_TRUE(third.waitFor(any));
}

TEST(CommandLine, SaysWhatItCannotDo) {
    const auto run = [](const QStringList& arguments) {
        return runProgram(QStringLiteral(KESTROWIND_APPLICATION), arguments);
    };
    const Outcome refusal = run({u"--bogus"_s});
    EXPECT_EQ(refusal.status, 2);
    EXPECT_THAT(refusal.errors, HasSubstr("\"--bogus\" is no option"));
    EXPECT_THAT(run({u"-h"_s}).output, HasSubstr("-ActivatePreset NAME"));
    EXPECT_THAT(run({u"-v"_s}).output, HasSubstr("Kestrowind "));
    const Outcome dump = run({u"-PrintReadings"_s, u"--bogus"_s, u"-DumpSMCKeys"_s});
    EXPECT_EQ(dump.status, 0);
    EXPECT_THAT(dump.output,
                HasSubstr("FATAL: could not open the SMC: AppleSMC service not found"));
    EXPECT_THAT(dump.errors, HasSubstr("./run"));
}

} // namespace
} // namespace kestrowind
