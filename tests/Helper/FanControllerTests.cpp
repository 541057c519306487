#include "Helper/FanController.h"
#include "Support/SimulatedHardware.h"

#include <cmath>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;
using Phase = HelperControlPhase;
using Targets = std::vector<double>;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Optional;

/// The controller on simulated hardware, in simulated time.
class FanControllerTest : public testing::Test {
protected:
    void SetUp() override { boot(0.05); }

    void boot(double load, const MachineProfile& profile = notebookProfile()) {
        controller.reset();
        mac = std::make_unique<SimulatedHardware>(load, profile);
        start();
    }
    void start() {
        controller =
            std::make_unique<FanController>([this] { return mac->smc; }, [this] { return now; });
    }

    void pass(std::chrono::milliseconds time) {
        for (auto passed = 0ms; passed < time; passed += 50ms) {
            now += 50ms;
            mac->hardware.step(0.05);
            if (passed % FanController::tickInterval == 0ms)
                controller->tick();
        }
    }
    /// Like an application that sends its targets every 2 seconds.
    void hold(const Targets& targets, std::chrono::seconds time) {
        for (auto passed = 0s; passed < time; passed += 2s) {
            ASSERT_TRUE(controller->setTargets(targets));
            pass(2s);
        }
    }
    [[nodiscard]] bool areFansWithTheSystem() const {
        return mac->connection->readUInt8("F0Md") == 0 && mac->connection->readUInt8("F1md") == 0 &&
               mac->connection->readUInt8("Ftst").value_or(0) == 0;
    }

    std::chrono::steady_clock::time_point now{1h};
    std::unique_ptr<SimulatedHardware> mac;
    std::unique_ptr<FanController> controller;
};

TEST_F(FanControllerTest, UnlocksThenDrivesTheFansButNoneWithoutDemand) {
    EXPECT_EQ(controller->status().phase, Phase::idle);
    EXPECT_THAT(controller->setTargets(Targets{3000, 4000}).value(), ElementsAre(3000, 4000));
    EXPECT_EQ(controller->status().phase, Phase::unlocking);
    pass(2500ms);
    EXPECT_EQ(controller->status().phase, Phase::unlocking);
    pass(1s);
    const HelperStatus status = controller->status();
    EXPECT_EQ(status.phase, Phase::controlling);
    EXPECT_THAT(status.effectiveTargets, ElementsAre(3000, 4000));
    EXPECT_THAT(status.autoFloors, ElementsAre(0, 0));
    EXPECT_EQ(mac->connection->readUInt8("F1md"), 1);
    EXPECT_EQ(mac->read("F1Tg"), 4000);
    EXPECT_THAT(controller->setTargets(Targets{2000, 9000}).value(), ElementsAre(2000, 6240));
    EXPECT_EQ(mac->read("F0Tg"), 2000) << "at once, now that the fans are held";

    hold({0, 3000}, 2s);
    EXPECT_EQ(controller->phase(), Phase::controlling);
    EXPECT_EQ(mac->connection->readUInt8("F0Md"), 0);
    EXPECT_EQ(mac->connection->readUInt8("F1md"), 1);
    hold({2000, 0}, 2s);
    EXPECT_EQ(mac->connection->readUInt8("F0Md"), 1);
    EXPECT_EQ(mac->connection->readUInt8("F1md"), 0);
}

TEST_F(FanControllerTest, RaisesTooLowTargetsToTheFloorAsTheMachineHeatsUp) {
    hold({1500, 1500}, 4s);
    ASSERT_EQ(mac->read("F0Tg"), 1500);
    mac->hardware.setLoad(1);
    hold({1500, 1500}, 20s);
    const HelperStatus status = controller->status();
    EXPECT_GT(status.autoFloors[0], 2000);
    EXPECT_EQ(status.effectiveTargets, status.autoFloors);
    EXPECT_NEAR(mac->read("F0Tg"), status.autoFloors[0], 1);
    EXPECT_GT(mac->hardware.fans()[0].actualRPM, 2000);
}

TEST_F(FanControllerTest, AssumesTheWorstWithoutAnyTemperature) {
    MachineProfile profile = notebookProfile();
    profile.sensors.clear();
    boot(0.05, profile);
    EXPECT_THAT(controller->setTargets(Targets{1500, 1500}).value(), ElementsAre(5780, 6240));
    EXPECT_EQ(controller->status().hottestSensorCelsius, 0);
}

TEST_F(FanControllerTest, HandsBackWhenItHearsNothingForTheHeartbeatTime) {
    for (const bool isStillUnlocking : {true, false}) {
        SCOPED_TRACE(isStillUnlocking);
        boot(0.05);
        if (isStillUnlocking)
            mac->smc->setFault("F0Md", SimulatedSMC::Fault::fails);
        ASSERT_TRUE(controller->setTargets(Targets{3000, 3000}));
        pass(5500ms);
        EXPECT_EQ(controller->phase(), isStillUnlocking ? Phase::unlocking : Phase::controlling);
        ASSERT_TRUE(controller->setTargets(Targets{3000, 3000}));
        pass(5500ms);
        EXPECT_TRUE(controller->isHolding());
        (void)controller->status(); // asking is not holding, nor is nonsense
        EXPECT_FALSE(controller->setTargets(Targets{2000}));
        EXPECT_FALSE(controller->setTargets(Targets{2000, NAN}));
        EXPECT_THAT(controller->status().effectiveTargets, ElementsAre(3000, 3000));
        mac->smc->setFault("F0Md", std::nullopt);
        pass(1s);
        EXPECT_EQ(controller->phase(), Phase::idle);
        EXPECT_TRUE(areFansWithTheSystem());
    }
}

TEST_F(FanControllerTest, HandsBackWhatAPredecessorHeldAndWhatItHoldsItself) {
    mac->takeFans();
    start();
    EXPECT_TRUE(areFansWithTheSystem());
    hold({3000, 3000}, 4s);
    controller->releaseControl();
    EXPECT_TRUE(areFansWithTheSystem());
    hold({3000, 3000}, 4s);
    ASSERT_EQ(controller->phase(), Phase::controlling);
    controller.reset();
    EXPECT_TRUE(areFansWithTheSystem()) << "and so does a controller that ends in good order";
}

TEST_F(FanControllerTest, HandsBackAFanThatCouldNotBeReachedOnceItCan) {
    hold({3000, 3000}, 4s);
    for (const auto fault : {SimulatedSMC::Fault::timesOut, SimulatedSMC::Fault::missing}) {
        mac->smc->setFault("F1md", fault);
        controller->releaseControl();
        pass(1s);
        EXPECT_TRUE(controller->needsTicks());
        mac->smc->setFault("F1md", std::nullopt);
        pass(1s);
        EXPECT_TRUE(areFansWithTheSystem());
        EXPECT_FALSE(controller->needsTicks());
        hold({3000, 3000}, 4s);
        ASSERT_EQ(controller->phase(), Phase::controlling);
    }
}

TEST_F(FanControllerTest, ReportsWhyItFailedHoldsNothingThenAndTriesAgainWhenAsked) {
    mac->smc->setFault("F1md", SimulatedSMC::Fault::fails);
    hold({3000, 3000}, 12s);
    ASSERT_TRUE(controller->setTargets(Targets{3000, 3000}));
    pass(1s);
    HelperStatus status = controller->status();
    EXPECT_EQ(status.phase, Phase::failed);
    EXPECT_THAT(status.lastError, Optional(HasSubstr("within 12 seconds: SMC key F1md error")));
    EXPECT_EQ(mac->connection->readUInt8("F0Md"), 0);
    EXPECT_EQ(mac->connection->readUInt8("Ftst"), 0);
    controller->releaseControl();
    EXPECT_FALSE(controller->status().lastError);

    mac->smc->setFault("F1md", std::nullopt);
    hold({3000, 3000}, 4s);
    ASSERT_EQ(controller->phase(), Phase::controlling);
    mac->smc->setFault("F1Tg", SimulatedSMC::Fault::timesOut);
    pass(1s);
    status = controller->status();
    EXPECT_EQ(status.phase, Phase::failed);
    EXPECT_THAT(status.lastError, Optional(HasSubstr("SMC call failed")));
    EXPECT_TRUE(areFansWithTheSystem());
    EXPECT_THAT(status.effectiveTargets, ElementsAre(0, 0));
}

TEST_F(FanControllerTest, AnswersOnAMachineThatHasNothingToDrive) {
    MachineProfile fanless = notebookProfile();
    fanless.fans.clear();
    boot(0.5, fanless);
    EXPECT_EQ(controller->setTargets(Targets{}).error(), "this machine has no fans");
    EXPECT_GT(controller->status().hottestSensorCelsius, 40);

    boot(0.05);
    mac->smc->setServices(SimulatedSMC::Services::none);
    start();
    EXPECT_EQ(controller->setTargets(Targets{1, 2}).error(), "AppleSMC service not found");
    EXPECT_EQ(controller->status().phase, Phase::failed);
    mac->smc->setServices(SimulatedSMC::Services::secondOnly);
    EXPECT_TRUE(controller->setTargets(Targets{3000, 3000})) << "the SMC came back";
}

} // namespace
} // namespace kestrowind
