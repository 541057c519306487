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
using testing::HasSubstr;
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
             Case{"/thermal/cpu/idle", "\"10\"", "thermal.cpu.idle: must be a number"},
             Case{"/thermal/cpu/idle", "true", "thermal.cpu.idle: must be a number"},
             Case{"/thermal/timeConstant", "0", "thermal.timeConstant: must lie between 0.1 and"},
             Case{"/systemControl/fullAt", "60", "systemControl.fullAt: must be greater than"},
             Case{"/fans", "{}", "fans: must be an array"},
             Case{"/fans/0/maximum", "1000", "fans[0].maximum: must be greater than minimum"},
             Case{"/fans/0/modeKey", "\"MD\"", "fans[0].modeKey: must be \"Md\""},
             Case{"/fans/0", "{}", "fans[0]: member \"minimum\" is missing"},
             Case{"/unlockSeconds", "-1", "unlockSeconds: must lie between 0 and"},
             Case{"/unlockSeconds", "null", "unlockSeconds: must be a number"},
             Case{"/sensors/0/key", "\"Tp0\"", "sensors[0].key: must be exactly 4 bytes"},
             Case{"/sensors/0/key", "\"F0Tg\"", "sensors[0].key: the machine already has a key"},
             Case{"/sensors/0/group", "\"ssd\"", "sensors[0].group: must be \"cpu\" or"},
             Case{"/keys/0/name", "\"Tp01\"", "keys[0].name: the machine already has a key Tp01"},
             Case{"/keys/0/name", "\"0xFF\"", "none"},
             Case{"/keys/0/name", "\"0xFFFFFFFG\"", "keys[0].name: must be exactly 4 bytes"},
             Case{"/keys/0/type", "\"flt\"", "keys[0].type: must be exactly 4 bytes"},
             Case{"/keys/0/hex", "\"00c\"", "keys[0].hex: must be pairs of hexadecimal digits"},
             Case{"/keys/0/hex", "\"-100\"", "keys[0].hex: must be pairs of hexadecimal digits"},
             Case{"/keys/0/size", "40", "keys[0].hex: has 4 bytes, the key holds 32"},
             Case{"/keys/0/size", "4.5", "keys[0].size: must be a whole number"},
             Case{"/keys/0/size", "1e99", "keys[0].size: must be a whole number"},
             Case{"/keys/0/size", "9999999999999", "keys[0].size: must lie between 0 and 1000"},
             Case{"/keys/0/attributes", "256", "keys[0].attributes: must lie between 0 and 255"},
             Case{"/filler", "[{\"prefix\":\"TT\",\"type\":\"flt \",\"size\":4,\"count\":1}]",
                  "filler[0].prefix: must be 1 byte"},
             Case{"/filler", "[{\"prefix\":\"P\",\"type\":\"flt \",\"size\":4,\"count\":0}]",
                  "filler[0].count: must lie between 1 and"},
         }) {
        Json profile = validProfile();
        profile[Json::json_pointer(pointer)] = Json::parse(value);
        EXPECT_THAT(faultOf(profile), StartsWith(fault)) << pointer << " = " << value;
    }
}

TEST(MachineProfile, SaysWhereADocumentIsNoJsonAtAll) {
    for (const std::string document : {"", "{", "[1,]", "{\"model\": \"\xff\"}"}) {
        const auto parsed = parseMachineProfile(document);
        ASSERT_FALSE(parsed) << document;
        EXPECT_THAT(parsed.error(), StartsWith("parse error at line 1"));
    }
    EXPECT_EQ(faultOf(Json::array()), "must be an object");
}

TEST(MachineProfile, ExpressesKeysThatNoSaneMachineHas) {
    Json profile = validProfile();
    profile["keys"] = Json::parse(R"([
        {"name": "Tp02", "type": "flt ", "size": 0},
        {"name": "Tp03", "type": "flt ", "hex": "42"},
        {"name": "Te04", "type": "flt ", "size": 40},
        {"name": "#KEY", "type": "ui16", "hex": "0102"},
        {"name": "0x547080FF", "type": "0x00000000", "hex": "00"}])");
    SimulatedHardware mac(0.5, parseMachineProfile(profile.dump()).value());
    EXPECT_EQ(mac.connection->readBytes("Tp02")->bytes().size(), 0U);
    EXPECT_EQ(mac.connection->readBytes("Tp03")->bytes().size(), 1U);
    EXPECT_EQ(mac.connection->readBytes("Te04")->bytes().size(), 32U);
    EXPECT_EQ(mac.connection->keyInfo("Te04")->dataSize, 40U);
    EXPECT_FALSE(mac.connection->keyCount());
    EXPECT_TRUE(mac.connection->keyExists("Tp\x80\xff"));
}

TEST(ProfileLibrary, ShipsMachinesThatWork) {
    struct Case {
        QString name;
        std::size_t fans, cpuSensors, gpuSensors, keys;
    };
    for (const auto& [name, fans, cpuSensors, gpuSensors, keys] :
         {Case{u"notebook-2fan"_s, 2, 10, 4, 39}, Case{u"desktop-1fan"_s, 1, 8, 4, 26},
          Case{u"fanless"_s, 0, 7, 2, 23}, Case{u"no-gpu-sensors"_s, 2, 10, 0, 35},
          Case{u"large-2000-keys"_s, 2, 30, 16, 2000}}) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_TRUE(ProfileLibrary::names().contains(name));
        const auto profile = ProfileLibrary::load(name);
        ASSERT_TRUE(profile) << profile.error();
        SimulatedHardware mac(0.05, *profile);
        EXPECT_EQ(mac.connection->readAllFans()->size(), fans);
        EXPECT_EQ(mac.connection->keyCount(), keys);
        SMCTemperatureSensors sensors(*mac.connection);
        EXPECT_EQ(sensors.sensorCounts(), (SMCTemperatureSensors::Counts{cpuSensors, gpuSensors}));
        EXPECT_NEAR(sensors.snapshot().cpuAverage, 38, 6) << "idle";
        mac.hardware.setLoad(1);
        mac.run(120);
        EXPECT_LT(sensors.snapshot().hottest, 105) << "no machine melts";
    }
}

TEST(ProfileLibrary, LoadsFilesAndSaysWhatIsWrongWithThem) {
    const QTemporaryDir folder;
    const auto faultOfFile = [](const QString& path) {
        const auto profile = ProfileLibrary::load(path);
        return profile ? "none" : profile.error();
    };
    QFile file(folder.filePath(u"mine.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(validProfile().dump()));
    file.close();
    EXPECT_EQ(faultOfFile(file.fileName()), "none");
    EXPECT_THAT(faultOfFile(folder.path()), HasSubstr("neither a file nor one of desktop-1fan, "));
    EXPECT_THAT(faultOfFile(u"notebook"_s), HasSubstr("profile notebook: neither"));
}

} // namespace
} // namespace kestrowind
