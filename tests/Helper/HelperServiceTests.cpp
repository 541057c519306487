#include "Helper/HelperService.h"
#include "Support/SimulatedHardware.h"

#include <fstream>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;
using Phase = HelperControlPhase;
using testing::ElementsAre;

class RecordingListener final : public HelperListener {
public:
    void hangUp(CallerID caller) override { hungUp.push_back(caller); }
    void setTicking(bool ticking) override { isTicking = ticking; }

    std::vector<CallerID> hungUp;
    bool isTicking = false;
};

/// The service over simulated hardware, in simulated time, with callers who are mere numbers.
class HelperServiceTest : public testing::Test {
protected:
    void pass(std::chrono::milliseconds time) {
        for (auto passed = 0ms; passed < time; passed += FanController::tickInterval) {
            now += FanController::tickInterval;
            mac.hardware.step(std::chrono::duration<double>(FanController::tickInterval).count());
            if (listener.isTicking)
                service.tick();
        }
    }
    void control(CallerID caller) {
        ASSERT_TRUE(service.setTargets(caller, targets));
        pass(4s);
        ASSERT_EQ(service.status().phase, Phase::controlling);
    }
    [[nodiscard]] int modes() const {
        return mac.connection->readUInt8("F0Md").value() +
               mac.connection->readUInt8("F1md").value();
    }

    const std::vector<double> targets{3000, 4000};
    std::chrono::steady_clock::time_point now{1h};
    SimulatedHardware mac{0.05};
    FanController controller{[this] { return mac.smc; }, [this] { return now; }};
    RecordingListener listener;
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("helper-service-" + std::to_string(::getpid()));
    HelperService service{
        controller, listener, {folder / "job", folder / "helper"}, [this] { return now; }};
};

TEST_F(HelperServiceTest, HandsBackWhenWhoHoldsTheFansGoesAndNotWhenAnotherDoes) {
    for (const CallerID caller : {1U, 2U, 3U})
        service.callerCame(caller);
    control(1);
    ASSERT_TRUE(service.setTargets(2, targets)) << "who comes later takes over";
    service.callerGone(1);
    service.callerGone(3);
    EXPECT_EQ(modes(), 2);
    EXPECT_TRUE(listener.isTicking);
    service.callerGone(2);
    EXPECT_EQ(modes(), 0);
    EXPECT_FALSE(listener.isTicking) << "an idle helper has no work of its own";
    EXPECT_FALSE(service.setTargets(3, std::vector{-1.0, 0.0}));
    control(3);
    service.releaseControl();
    EXPECT_EQ(modes(), 0);
}

TEST_F(HelperServiceTest, HangsUpOnAFlood) {
    service.callerCame(1);
    service.callerCame(2);
    control(1);
    for (int second = 0; second < 3; ++second, pass(1s)) {
        for (int call = 0; call < HelperService::mostCallsPerSecond; ++call)
            ASSERT_TRUE(service.admitCall(1));
    }
    EXPECT_FALSE(service.admitCall(3)) << "nobody knows that one";
    ASSERT_TRUE(service.setTargets(1, targets));
    for (int call = 0; call < HelperService::mostCallsPerSecond; ++call)
        EXPECT_TRUE(service.admitCall(1));
    EXPECT_FALSE(service.admitCall(1));
    EXPECT_FALSE(service.admitCall(1)) << "it is out";
    EXPECT_THAT(listener.hungUp, ElementsAre(1));
    EXPECT_EQ(modes(), 0) << "what it held is the system's";
    EXPECT_TRUE(service.admitCall(2));
}

TEST_F(HelperServiceTest, MakesRoomAmongTheIdlestAndKeepsWhoDrives) {
    service.callerCame(1);
    control(1);
    for (CallerID caller = 2; caller <= HelperService::mostCallers; ++caller) {
        now += 10ms;
        service.callerCame(caller);
        EXPECT_TRUE(caller == 5 || service.admitCall(caller));
    }
    service.callerCame(101);
    EXPECT_TRUE(service.admitCall(101));
    service.callerCame(102);
    EXPECT_THAT(listener.hungUp, ElementsAre(5, 2)) << "who said nothing, then who is silent";
    EXPECT_EQ(modes(), 2);
}

TEST_F(HelperServiceTest, ASleepHandsBackAndNothingIsTakenUntilTheMachineIsAwake) {
    service.callerCame(1);
    control(1);
    service.systemWillSleep();
    EXPECT_EQ(modes(), 0);
    EXPECT_THAT(service.setTargets(1, targets).value(), ElementsAre(0, 0));
    EXPECT_EQ(service.status().phase, Phase::idle);
    service.systemDidWake();
    pass(10s);
    EXPECT_EQ(service.status().phase, Phase::idle) << "waking takes nothing by itself";
    control(1);
}

TEST_F(HelperServiceTest, RemovesWhatWasInstalledAndSaysWhatStays) {
    std::filesystem::create_directories(folder / "helper" / "in the way");
    std::ofstream(folder / "job") << "job";
    control(1);
    EXPECT_FALSE(service.uninstall());
    EXPECT_EQ(modes(), 0);
    EXPECT_FALSE(exists(folder / "job"));
    std::filesystem::remove_all(folder / "helper");
    EXPECT_TRUE(service.uninstall()) << "what is gone already is removed";
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace kestrowind
