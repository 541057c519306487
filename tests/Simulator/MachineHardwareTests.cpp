#include "Simulator/SimulatedHardware.h"

#include <limits>

namespace kestrowind {
namespace {

using testing::AllOf;
using testing::DoubleNear;
using testing::Ge;
using testing::Gt;
using testing::Le;
using testing::Lt;

TEST(MachineHardware, StartsSettledUnderItsLoadAndStaysThere) {
    struct Case {
        double load, coolest, hottest;
    };
    for (const auto& [load, coolest, hottest] : {Case{0.05, 37, 43}, Case{0.9, 88, 92}}) {
        SimulatedHardware mac(load);
        const double atStart = mac.read("Tp01");
        EXPECT_THAT(atStart, AllOf(Ge(coolest), Le(hottest))) << "load " << load;
        mac.run(60);
        EXPECT_THAT(mac.read("Tp01"), DoubleNear(atStart, 0.1)) << "load " << load;
        EXPECT_THAT(mac.read("F0Ac"), DoubleNear(mac.read("F0Tg"), 5)) << "load " << load;
    }
    EXPECT_EQ(SimulatedHardware(0.05).read("F0Ac"), 1350) << "an idle machine is quiet";
}

TEST(MachineHardware, WarmsUpUnderLoadAndTheSystemSpeedsTheFansUp) {
    SimulatedHardware mac(0.05);
    mac.hardware.setLoad(0.9);
    double before = mac.read("Tp01");
    for (int second = 0; second < 10; ++second) {
        mac.run(1);
        EXPECT_THAT(mac.read("Tp01"), Gt(before));
        before = mac.read("Tp01");
    }
    mac.run(60);
    EXPECT_THAT(mac.read("Tp01"), AllOf(Ge(88.0), Le(92.0)));
    EXPECT_THAT(mac.read("F1Tg"), Gt(3000.0));
}

TEST(MachineHardware, CoolsByMoreThanTenDegreesInFifteenSecondsOfFullSpeed) {
    SimulatedHardware mac(0.9);
    mac.takeFans();
    const double before = mac.read("Tp01");
    ASSERT_TRUE(mac.connection->writeFloat("F0Tg", 5780));
    ASSERT_TRUE(mac.connection->writeFloat("F1Tg", 6240));
    mac.run(0.1);
    EXPECT_THAT(mac.read("F0Ac"), Lt(4500.0)) << "a fan has inertia";
    mac.run(14.9);
    EXPECT_THAT(mac.read("F0Ac"), DoubleNear(5780, 10));
    EXPECT_THAT(mac.read("Tp01"), Lt(before - 10));
}

TEST(MachineHardware, OneLongStepEqualsManyShortOnes) {
    SimulatedHardware once(0.05);
    SimulatedHardware often(0.05);
    for (SimulatedHardware* mac : {&once, &often})
        mac->hardware.setLoad(1);
    once.hardware.step(10);
    often.run(10);
    EXPECT_THAT(once.read("Tp01"), DoubleNear(often.read("Tp01"), 0.5));
}

TEST(MachineHardware, TurnsAFanWithinItsRangeWhateverIsWritten) {
    SimulatedHardware mac(0.05);
    mac.takeFans();
    ASSERT_TRUE(mac.connection->writeFloat("F0Tg", 1e9F));
    ASSERT_TRUE(mac.connection->writeFloat("F1Tg", 0));
    mac.run(20);
    EXPECT_THAT(mac.read("F0Ac"), DoubleNear(5780, 1));
    EXPECT_THAT(mac.read("F1Ac"), DoubleNear(1350, 1));
}

TEST(MachineHardware, LetsAFanBeTakenOnlyAfterItsUnlockTime) {
    SimulatedHardware mac(0.05);
    SMCConnection& smc = *mac.connection;
    EXPECT_FALSE(smc.writeUInt8("F0Md", 1)) << "locked";
    ASSERT_TRUE(smc.writeUInt8("Ftst", 1));
    mac.run(2.5);
    EXPECT_FALSE(smc.writeUInt8("F0Md", 1)) << "not yet unlocked";
    ASSERT_TRUE(smc.writeUInt8("Ftst", 1)) << "asking again does not begin anew";
    mac.run(0.7);
    EXPECT_TRUE(smc.writeUInt8("F0Md", 1));

    ASSERT_TRUE(smc.writeUInt8("Ftst", 0));
    EXPECT_EQ(smc.readUInt8("F0Md"), 0) << "locking again takes the fans back at once";
    EXPECT_EQ(mac.read("F0Tg"), 1350);
    ASSERT_TRUE(smc.writeUInt8("Ftst", 1));
    mac.run(1);
    EXPECT_FALSE(smc.writeUInt8("F0Md", 1)) << "the time starts anew";
}

TEST(MachineHardware, NeedsNoUnlockingWithoutAnUnlockKey) {
    MachineProfile profile = notebookProfile();
    profile.unlockSeconds.reset();
    SimulatedHardware mac(0.05, profile);
    EXPECT_FALSE(mac.connection->keyExists("Ftst"));
    EXPECT_TRUE(mac.connection->writeUInt8("F1md", 1));
}

TEST(MachineHardware, RefusesWritesThatTheFirmwareWouldRefuse) {
    SimulatedHardware mac(0.05);
    SMCConnection& smc = *mac.connection;
    const auto refused = [](const SMCResult<void>& result, const std::string& key) {
        const SMCError error = SMCKeyError{key, SimulatedSMC::resultRefused};
        return !result && result.error() == error;
    };
    EXPECT_TRUE(refused(smc.writeFloat("F0Tg", 3000), "F0Tg")) << "the system holds the fan";
    mac.takeFans();
    for (const float speed :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()})
        EXPECT_TRUE(refused(smc.writeFloat("F0Tg", speed), "F0Tg"));
    EXPECT_TRUE(refused(smc.writeUInt8("F0Md", 2), "F0Md"));
    EXPECT_TRUE(refused(smc.writeUInt8("Ftst", 7), "Ftst"));
    for (const std::string key : {"F0Ac", "F0Mn", "F0Mx", "Tp01"})
        EXPECT_TRUE(refused(smc.writeFloat(key, 1), key)) << "only to be read";
    EXPECT_EQ(smc.readUInt8("F0Md"), 1);
}

} // namespace
} // namespace kestrowind
