#include "Support/SimulatedHardware.h"

#include <limits>

namespace kestrowind {
namespace {

TEST(MachineHardware, IsSettledUnderItsLoadSettlesUnderAnotherAndIsCooledByItsFans) {
    SimulatedHardware mac(0.05);
    const double idle = mac.read("Tp01");
    EXPECT_NEAR(idle, 40, 3);
    mac.run(60);
    EXPECT_NEAR(mac.read("Tp01"), idle, 0.1);
    EXPECT_EQ(mac.read("F0Ac"), 1350) << "an idle machine is quiet";

    mac.hardware.setLoad(0.9);
    SimulatedHardware inOneStep(0.05);
    inOneStep.hardware.setLoad(0.9);
    inOneStep.hardware.step(10);
    mac.run(10);
    EXPECT_GT(mac.read("Tp01"), idle + 10);
    EXPECT_NEAR(inOneStep.read("Tp01"), mac.read("Tp01"), 0.5);
    mac.run(60);
    EXPECT_NEAR(mac.read("Tp01"), 90, 2);
    EXPECT_GT(mac.read("F1Tg"), 3000) << "the system speeds its fans up";

    mac.takeFans();
    const double before = mac.read("Tp01");
    ASSERT_TRUE(mac.connection->writeFloat("F0Tg", 1e9F));
    ASSERT_TRUE(mac.connection->writeFloat("F1Tg", 6240));
    mac.run(0.1);
    EXPECT_LT(mac.read("F0Ac"), 4500) << "a fan has inertia";
    mac.run(14.9);
    EXPECT_NEAR(mac.read("F0Ac"), 5780, 10) << "and turns within its range";
    EXPECT_LT(mac.read("Tp01"), before - 10) << "in fifteen seconds of full speed";
}

TEST(MachineHardware, LetsAFanBeTakenOnlyAfterItsUnlockTimeAndRefusesNonsense) {
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
