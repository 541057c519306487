#include "Shared/SMCKit/SMCTemperatureSensors.h"
#include "Simulator/Hardware/ProfileLibrary.h"
#include "Support/SimulatedHardware.h"

#include <QFile>
#include <nlohmann/json.hpp>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Json = nlohmann::json;
using testing::StartsWith;

const QString validFile = u":/profiles/notebook-2fan.json"_s;

std::string faultOf(const Json& profile) {
    const auto parsed = parseMachineProfile(profile.dump());
    return parsed ? "none" : parsed.error();
}

TEST(MachineProfile, NamesTheMemberThatIsWrong) {
    QFile file(validFile);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const Json valid = Json::parse(file.readAll().toStdString());
    // A member, what it is replaced with, and what is said about it.
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"/model", "1", "model: must be a text"},
        {"/modell", "\"m\"", "modell: unknown member"},
        {"/thermal", "[]", "thermal: must be an object"},
        {"/thermal/cpu/idle", "true", "thermal.cpu.idle: must be a number"},
        {"/thermal/timeConstant", "0", "thermal.timeConstant: must lie between 0.1 and"},
        {"/systemControl/fullAt", "60", "systemControl.fullAt: must be greater than"},
        {"/fans", "{}", "fans: must be an array"},
        {"/fans/0/maximum", "1350", "fans[0].maximum: must be greater than minimum"},
        {"/fans/0/modeKey", "\"MD\"", "fans[0].modeKey: must be \"Md\""},
        {"/fans/0", "{}", "fans[0]: member \"minimum\" is missing"},
        {"/sensors/0/key", "\"F0Tg\"", "sensors[0].key: the machine already has a key"},
        {"/sensors/0/group", "\"ssd\"", "sensors[0].group: must be \"cpu\" or"},
        {"/keys/0/name", "\"Tp01\"", "keys[0].name: the machine already has a key Tp01"},
        {"/keys/0/name", "\"0xFF\"", "none"},
        {"/keys/0/name", "\"0xFFFFFFFG\"", "keys[0].name: must be exactly 4 bytes"},
        {"/keys/0/hex", "\"-100\"", "keys[0].hex: must be pairs of hexadecimal digits"},
        {"/keys/0/size", "40", "keys[0].hex: has 4 bytes, the key holds 32"},
        {"/keys/0/size", "1e99", "keys[0].size: must be a whole number"},
        {"/keys/0/size", "9999999999999", "keys[0].size: must lie between 0 and 1000"},
        {"/filler", "[{\"prefix\":\"TT\",\"type\":\"flt \",\"size\":4,\"count\":1}]",
         "filler[0].prefix: must be 1 byte"},
    };
    for (const auto& [pointer, value, fault] : rows) {
        Json profile = valid;
        profile[Json::json_pointer(pointer)] = Json::parse(value);
        EXPECT_THAT(faultOf(profile), StartsWith(fault)) << pointer << " = " << value;
    }
    EXPECT_EQ(faultOf(Json::array()), "must be an object");
    EXPECT_THAT(parseMachineProfile("{").error(), StartsWith("parse error at line 1"));
}

TEST(ProfileLibrary, ShipsMachinesThatWork) {
    for (const QString& name : ProfileLibrary::names()) {
        SCOPED_TRACE(name.toStdString());
        const auto profile = ProfileLibrary::load(name);
        ASSERT_TRUE(profile) << profile.error();
        SimulatedHardware mac(0.05, *profile);
        EXPECT_EQ(mac.connection->readAllFans()->size(), profile->fans.size());
        SMCTemperatureSensors sensors(*mac.connection);
        EXPECT_NEAR(sensors.snapshot().cpuAverage, 38, 6) << "idle";
        mac.hardware.setLoad(1);
        mac.run(120);
        EXPECT_LT(sensors.snapshot().hottest, 105) << "no machine melts";
    }
    EXPECT_GE(ProfileLibrary::names().size(), 5);
    EXPECT_TRUE(ProfileLibrary::load(validFile)) << "by the name of its file";
    EXPECT_FALSE(ProfileLibrary::load(u":/profiles"_s));
}

} // namespace
} // namespace kestrowind
