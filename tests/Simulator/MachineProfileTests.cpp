#include "Shared/SMCKit/SMCTemperatureSensors.h"
#include "Simulator/Hardware/ProfileLibrary.h"
#include "Simulator/SimulatedHardware.h"

#include <QFile>
#include <QTemporaryDir>
#include <nlohmann/json.hpp>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Json = nlohmann::json;
using testing::StartsWith;

Json validProfile() {
    return Json::parse(R"({
        "model": "m", "cpu": "c", "osVersion": "o",
        "thermal": {"ambient": 25, "timeConstant": 7, "cooling": 1,
                    "cpu": {"idle": 10, "full": 60}, "gpu": {"idle": 10, "full": 60}},
        "systemControl": {"quietBelow": 60, "fullAt": 98},
        "fans": [{"minimum": 1000, "maximum": 5000, "inertia": 1, "modeKey": "Md"}],
        "unlockSeconds": 3,
        "sensors": [{"key": "Tp01", "group": "cpu", "offset": 0.5}],
        "keys": [{"name": "TB0T", "type": "flt ", "hex": "0000c841"}]
    })");
}

std::string faultOf(const Json& profile) {
    const auto parsed = parseMachineProfile(profile.dump());
    return parsed ? "none" : parsed.error();
}

TEST(MachineProfile, NamesTheMemberThatIsWrong) {
    ASSERT_EQ(faultOf(validProfile()), "none");
    struct Case {
        const char* pointer; ///< member that is replaced
        const char* value;
        const char* fault;
    };
    for (const auto& [pointer, value, fault] : {
             Case{"/model", "1", "model: must be a text"},
             Case{"/modell", "\"m\"", "modell: unknown member"},
             Case{"/thermal", "[]", "thermal: must be an object"},
             Case{"/thermal/cpu/idle", "true", "thermal.cpu.idle: must be a number"},
             Case{"/thermal/timeConstant", "0", "thermal.timeConstant: must lie between 0.1 and"},
             Case{"/systemControl/fullAt", "60", "systemControl.fullAt: must be greater than"},
             Case{"/fans", "{}", "fans: must be an array"},
             Case{"/fans/0/maximum", "1000", "fans[0].maximum: must be greater than minimum"},
             Case{"/fans/0/modeKey", "\"MD\"", "fans[0].modeKey: must be \"Md\""},
             Case{"/fans/0", "{}", "fans[0]: member \"minimum\" is missing"},
             Case{"/unlockSeconds", "null", "unlockSeconds: must be a number"},
             Case{"/sensors/0/key", "\"F0Tg\"", "sensors[0].key: the machine already has a key"},
             Case{"/sensors/0/group", "\"ssd\"", "sensors[0].group: must be \"cpu\" or"},
             Case{"/keys/0/name", "\"Tp01\"", "keys[0].name: the machine already has a key Tp01"},
             Case{"/keys/0/name", "\"0xFF\"", "none"},
             Case{"/keys/0/name", "\"0xFFFFFFFG\"", "keys[0].name: must be exactly 4 bytes"},
             Case{"/keys/0/hex", "\"-100\"", "keys[0].hex: must be pairs of hexadecimal digits"},
             Case{"/keys/0/size", "40", "keys[0].hex: has 4 bytes, the key holds 32"},
             Case{"/keys/0/size", "1e99", "keys[0].size: must be a whole number"},
             Case{"/keys/0/size", "9999999999999", "keys[0].size: must lie between 0 and 1000"},
             Case{"/keys/0/attributes", "256", "keys[0].attributes: must lie between 0 and 255"},
             Case{"/filler", "[{\"prefix\":\"TT\",\"type\":\"flt \",\"size\":4,\"count\":1}]",
                  "filler[0].prefix: must be 1 byte"},
         }) {
        Json profile = validProfile();
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
}

TEST(ProfileLibrary, LoadsFiles) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"mine.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(validProfile().dump()));
    file.close();
    EXPECT_TRUE(ProfileLibrary::load(file.fileName()));
    EXPECT_FALSE(ProfileLibrary::load(folder.path()));
}

} // namespace
} // namespace kestrowind
