#include "Shared/SMCMachine.h"

namespace kestrowind {
namespace {

using Fault = SimulatedSMC::Fault;

TEST(SMCFans, AreReadInOrderWithEverySpeedInItsPlaceOrNotAtAll) {
    SMCMachine mac;
    mac.smc->setKey("FNum", "ui16", {2, 9}); // the first byte counts, whatever the type
    mac.addFan(1);
    mac.addFan(0);
    mac.smc->setFault("F1Md", Fault::missing);
    const SMCFanReading first{0, 2000.5, 2100, 1200, 5900, 1};
    const SMCFanReading second{1, 2000.5, 2100, 1200, 5900, std::nullopt};
    EXPECT_EQ(mac.connection->readAllFans(), std::vector({first, second}));

    // One unreadable speed fails them all.
    mac.smc->removeKey("F1Mx");
    EXPECT_EQ(failure(mac.connection->readAllFans()), "SMC key F1Mx error (result 132)");
    mac.smc->setFault("F1Tg", Fault::fails); // read before the maximum
    EXPECT_EQ(failure(mac.connection->readAllFans()), "SMC key F1Tg error (result 133)");
}

TEST(SMCFans, WithoutAReadableCountThereAreNone) {
    SMCMachine mac;
    mac.addFan(0);
    const std::vector<SMCFanReading> none;
    EXPECT_EQ(mac.connection->readAllFans(), none);
    mac.smc->setByte("FNum", 0);
    EXPECT_EQ(mac.connection->readAllFans(), none);
    mac.smc->setByte("FNum", 1);
    EXPECT_EQ(mac.connection->readAllFans()->size(), 1U);
    mac.smc->setFault("FNum", Fault::fails);
    EXPECT_EQ(mac.connection->readAllFans(), none);
}

TEST(SMCFans, TheModeComesFromTheFirstSpellingThereIsAndNeverFailsTheReading) {
    SMCMachine mac;
    mac.addFan(0);
    mac.smc->setByte("F0md", 5);
    EXPECT_EQ(mac.connection->fanModeKey(0), "F0Md");
    mac.smc->setFault("F0Md", Fault::fails); // known to exist by now, so not replaced by the other
    EXPECT_EQ(mac.connection->readFan(0)->modeRaw, std::nullopt);

    mac.addFan(1);
    mac.smc->setKey("F1Md", "ui8 ", {});
    EXPECT_EQ(mac.connection->readFan(1)->modeRaw, std::nullopt);

    mac.smc->setByte("F2md", 5);
    EXPECT_EQ(mac.connection->fanModeKey(2), "F2md");
    EXPECT_EQ(mac.connection->fanModeKey(3), std::nullopt);
}

} // namespace
} // namespace kestrowind
