#include "System/RunningApp.h"

#include <QElapsedTimer>

#include <random>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

int environmentNumber(const char* name, int otherwise) {
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

/// Kills what drives the fans at random moments: in the midst of starting, taking the fans, driving
/// and quitting. KESTROWIND_KILL_ROUNDS and KESTROWIND_KILL_SEED choose how often and which.
TEST(RandomKills, LeaveNoFanBehindAndNothingThatCannotStart) {
    const int rounds = environmentNumber("KESTROWIND_KILL_ROUNDS", 15);
    const auto seed = static_cast<unsigned>(environmentNumber("KESTROWIND_KILL_SEED", 1));
    std::mt19937 random(seed);
    const auto anyOf = [&random](int count) {
        return std::uniform_int_distribution<>(0, count - 1)(random);
    };

    const BootedMac mac(quickMac);
    ASSERT_TRUE(mac.isUp());
    FanModes modes(mac);
    QTemporaryDir home;
    int driven = 0;
    qint64 slowest = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round << ", seed " << seed);
        RunningApp app(mac, fullSpeed, {}, home.path());
        // Half of the kills come at any moment of the start, half once the fans are held.
        if (anyOf(2) == 0) {
            ASSERT_TRUE(waitUntil([&] { return modes.areAllManual(); }, 15s)) << "it starts again";
            ++driven;
            std::this_thread::sleep_for(std::chrono::milliseconds(anyOf(40)));
        } else {
            std::this_thread::sleep_for(std::chrono::milliseconds(anyOf(600)));
        }
        const bool isQuitting = anyOf(4) == 0;
        if (isQuitting) {
            app.send(SIGTERM);
            std::this_thread::sleep_for(std::chrono::milliseconds(anyOf(30)));
        }
        const int victim = anyOf(3);
        if (victim != 0)
            mac.control("helper kill"); // may not run just now
        if (victim != 1)
            app.send(SIGKILL);
        QElapsedTimer sinceKill;
        sinceKill.start();
        if (victim == 1 && !isQuitting) {
            ASSERT_TRUE(waitUntil([&] { return modes.areAllManual(); }, 15s))
                << "the application finds the new helper";
            app.send(SIGKILL);
            sinceKill.restart();
        }
        ASSERT_TRUE(waitUntil([&] { return modes.areAllSystem(); })) << "a fan is stuck";
        slowest = std::max(slowest, sinceKill.elapsed());
        // Quitting without a helper takes two calls' time, and no fan any more.
        app.waitForEnd(8s);
        ASSERT_TRUE(waitUntil([&] { return modes.areAllSystem(); })) << "a fan was taken again";
    }
    std::printf("%d rounds, %d with the fans held, handed back after at most %lld ms\n", rounds,
                driven, static_cast<long long>(slowest));
}

} // namespace
} // namespace kestrowind
