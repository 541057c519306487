#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCMachine.h"

namespace kestrowind {
namespace {

using namespace std::string_literals;

TEST(FourCC, PacksAnyNameAndUnpacksToFourCharactersOrQuestionMarks) {
    const std::pair<std::string_view, std::uint32_t> packed[] = {
        {"FNum", 0x464E756D}, {"flt ", 0x666C7420},  {"", 0},
        {"ui8", 0x756938},    {"F10Ac", 0x31304163}, {"\xC3\xA9", 0xC3A9}};
    for (const auto& [name, code] : packed)
        EXPECT_EQ(smcFourCC(name), code) << name;
    const std::pair<std::uint32_t, std::string> unpacked[] = {{0x464E756D, "FNum"},
                                                              {0, "\0\0\0\0"s},
                                                              {0x7F00417F, "\x7F\0A\x7F"s},
                                                              {0xFF000000, "????"},
                                                              {0x41414180, "????"}};
    for (const auto& [code, name] : unpacked)
        EXPECT_EQ(smcFourCCString(code), name) << std::hex << code;
}

TEST(SMCConnection, OpensEitherServiceAndClosesItWhenDestroyed) {
    const auto smc = std::make_shared<SimulatedSMC>();
    for (const auto services : {SimulatedSMC::Services::both, SimulatedSMC::Services::secondOnly}) {
        smc->setServices(services);
        const auto connection = SMCConnection::open(smc);
        EXPECT_EQ(failure(connection), "");
        EXPECT_EQ(smc->openConnections(), 1U);
    }
    EXPECT_EQ(smc->openConnections(), 0U);
    smc->setOpenResult(-536870207);
    EXPECT_EQ(failure(SMCConnection::open(smc)), "IOServiceOpen failed (0xe00002c1)");
    smc->setServices(SimulatedSMC::Services::none);
    EXPECT_EQ(failure(SMCConnection::open(smc)), "AppleSMC service not found");
    EXPECT_EQ(description(SMCCallFailed{0x2C}), "SMC call failed (0x2c)");
}

TEST(SMCConnection, AsksForADescriptionUntilItGotOneAndThenNeverAgain) {
    SMCMachine mac;
    const auto calls = [&] {
        return mac.countsOf([&] { (void)mac.connection->keyExists("F0Md"); }).calls;
    };
    EXPECT_EQ(failure(mac.connection->keyInfo("F0Md")), "SMC key F0Md error (result 132)");
    EXPECT_EQ(calls(), 1);
    mac.smc->setByte("F0Md", 1);
    mac.smc->setFault("F0Md", SimulatedSMC::Fault::timesOut);
    EXPECT_EQ(failure(mac.connection->keyInfo("F0Md")), "SMC call failed (0xe00002d6)");
    mac.smc->setFault("F0Md", std::nullopt);
    EXPECT_EQ(calls(), 1);
    EXPECT_EQ(calls(), 0);
    mac.smc->setFault("F0Md", SimulatedSMC::Fault::fails);
    EXPECT_EQ(calls(), 0);
    EXPECT_EQ(failure(mac.connection->readBytes("F0Md")), "SMC key F0Md error (result 133)");
}

TEST(SMCConnection, CountsTheKeysThatAreThereUnlessTheMachineSaysOtherwise) {
    SMCMachine mac;
    mac.smc->setByte("byte", 7);
    mac.smc->setFloat("F0Tg", 0);
    EXPECT_EQ(mac.connection->keyCount(), 2U);
    mac.smc->setFault("byte", SimulatedSMC::Fault::missing);
    EXPECT_EQ(mac.connection->keyCount(), 1U);
    EXPECT_EQ(mac.connection->keyName(0), "F0Tg");
    mac.smc->setKey("#KEY", "ui32", {0, 0, 0x04, 0xD2});
    EXPECT_EQ(mac.connection->keyCount(), 1234U);
    mac.smc->removeKey("#KEY");
    EXPECT_EQ(mac.connection->keyCount(), 1U);
}

TEST(SMCConnection, RefusesValuesOfAnotherTypeOrLengthEitherWay) {
    SMCMachine mac;
    mac.smc->setByte("byte", 7);
    mac.smc->setFloat("F0Tg", 0);
    mac.smc->setKey("half", "flt ", {0, 0});
    mac.smc->setKey("none", "ui8 ", {});
    mac.smc->setKey("#KEY", "ui16", {0, 5});
    mac.smc->setKey("long", "ch8*", std::vector<std::uint8_t>(40));
    SMCConnection& smc = *mac.connection;
    EXPECT_EQ(failure(smc.readFloat("byte")), "SMC key byte is type ui8 , expected flt ");
    EXPECT_EQ(failure(smc.readFloat("half")), "SMC key half is type flt , expected flt ");
    EXPECT_EQ(failure(smc.readUInt8("none")), "SMC key none error (result 255)");
    EXPECT_EQ(failure(smc.keyCount()), "SMC key #KEY error (result 255)");
    EXPECT_EQ(failure(smc.keyName(7)), "SMC key #7 error (result 132)");
    EXPECT_EQ(smc.readBytes("long")->bytes().size(), 32U);

    EXPECT_EQ(failure(smc.writeUInt8("half", 1)), "SMC key half holds 2 bytes, 1 given");
    EXPECT_EQ(failure(smc.writeFloat("byte", 1)), "SMC key byte holds 1 bytes, 4 given");
    EXPECT_EQ(failure(smc.writeBytes("long", std::vector<std::uint8_t>(40))),
              "SMC key long holds 40 bytes, 40 given");
    EXPECT_EQ(failure(smc.writeUInt8("gone", 1)), "SMC key gone error (result 132)");
    EXPECT_EQ(mac.smc->counts().writes, 0);
    mac.smc->setWriteRule("byte", [](auto) { return std::uint8_t{130}; });
    EXPECT_EQ(failure(smc.writeUInt8("byte", 1)), "SMC key byte error (result 130)");
    EXPECT_EQ(smc.readUInt8("byte"), 7);
    EXPECT_EQ(failure(smc.writeFloat("F0Tg", 50)), "");
    EXPECT_EQ(smc.readFloat("F0Tg"), 50.0F);
    const auto fifty = smc.readBytes("F0Tg").value();
    EXPECT_THAT(fifty.bytes(), testing::ElementsAre(0, 0, 0x48, 0x42)) << "the lowest one first";
}

} // namespace
} // namespace kestrowind
