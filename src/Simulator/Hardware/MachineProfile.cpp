#include "Simulator/Hardware/MachineProfile.h"

#include "Shared/HelperShared/FanTargets.h"
#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCKit/SMCFanReading.h"
#include "Simulator/Hardware/StrictJson.h"

#include <algorithm>
#include <cstdio>
#include <set>

namespace kestrowind {
namespace {

// Fan numbers have one digit in a key name of four characters.
constexpr std::size_t mostFans = 10;
constexpr std::size_t mostKeys = 20'000;
constexpr double hottestPossible = 1000; // degrees Celsius; beyond any machine
constexpr int largestSize = 1'000;
constexpr std::size_t valueCapacity = 32;

std::uint32_t readName(const StrictJson& json) {
    const auto name = parseKeyName(json.text());
    if (!name)
        json.fail("must be exactly 4 bytes, or 0x and 8 hexadecimal digits");
    return *name;
}

HeatProfile readHeat(const StrictJson& json) {
    json.allowOnly({"idle", "full"});
    return {.idle = json.at("idle").number(0, hottestPossible),
            .full = json.at("full").number(0, hottestPossible)};
}

ThermalProfile readThermal(const StrictJson& json) {
    json.allowOnly({"ambient", "timeConstant", "cooling", "cpu", "gpu"});
    return {.ambient = json.at("ambient").number(-50, 60),
            .timeConstant = json.at("timeConstant").number(0.1, 3600),
            .cooling = json.at("cooling").number(0, 100),
            .cpu = readHeat(json.at("cpu")),
            .gpu = readHeat(json.at("gpu"))};
}

SystemControlProfile readSystemControl(const StrictJson& json) {
    json.allowOnly({"quietBelow", "fullAt"});
    SystemControlProfile control;
    control.quietBelow = json.at("quietBelow").number(0, hottestPossible);
    control.fullAt = json.at("fullAt").number(0, hottestPossible);
    if (control.fullAt <= control.quietBelow)
        json.at("fullAt").fail("must be greater than quietBelow");
    return control;
}

FanProfile readFan(const StrictJson& json) {
    json.allowOnly({"minimum", "maximum", "inertia", "modeKey"});
    FanProfile fan{.minimum = json.at("minimum").number(0, highestPlausibleRPM),
                   .maximum = json.at("maximum").number(1, highestPlausibleRPM),
                   .inertia = json.at("inertia").number(0.01, 60)};
    if (fan.maximum <= fan.minimum)
        json.at("maximum").fail("must be greater than minimum");
    const std::string modeKey = json.at("modeKey").text();
    if (modeKey != "Md" && modeKey != "md" && modeKey != "none")
        json.at("modeKey").fail("must be \"Md\", \"md\" or \"none\"");
    fan.modeKeySuffix = modeKey == "none" ? std::string() : modeKey;
    return fan;
}

SensorProfile readSensor(const StrictJson& json) {
    json.allowOnly({"key", "group", "offset"});
    const std::string group = json.at("group").text();
    if (group != "cpu" && group != "gpu")
        json.at("group").fail("must be \"cpu\" or \"gpu\"");
    const auto offset = json.find("offset");
    return {.name = readName(json.at("key")),
            .part = group == "cpu" ? SensorProfile::Part::cpu : SensorProfile::Part::gpu,
            .offset = offset ? offset->number(-100, 100) : 0};
}

SimulatedSMC::Key readKey(const StrictJson& json) {
    json.allowOnly({"name", "type", "size", "attributes", "hex"});
    SimulatedSMC::Key key{.name = readName(json.at("name")), .type = readName(json.at("type"))};
    const auto size = json.find("size");
    const auto hex = json.find("hex");
    if (!size && !hex)
        json.fail("needs a size, a hex or both");
    if (hex) {
        const auto bytes = parseHexBytes(hex->text());
        if (!bytes)
            hex->fail("must be pairs of hexadecimal digits");
        key.bytes = *bytes;
    }
    key.size = size ? static_cast<std::uint32_t>(size->integer(0, largestSize))
                    : static_cast<std::uint32_t>(key.bytes.size());
    const std::size_t held = std::min<std::size_t>(key.size, valueCapacity);
    if (hex && key.bytes.size() != held)
        hex->fail("has " + std::to_string(key.bytes.size()) + " bytes, the key holds " +
                  std::to_string(held));
    key.bytes.resize(held);
    if (const auto attributes = json.find("attributes"))
        key.attributes = static_cast<std::uint8_t>(attributes->integer(0, 255));
    return key;
}

/// Keys that are there only because a real machine has so many: a letter and a number in base 36.
std::vector<SimulatedSMC::Key> readFiller(const StrictJson& json) {
    json.allowOnly({"prefix", "type", "size", "count"});
    const std::string prefix = json.at("prefix").text();
    if (prefix.size() != 1)
        json.at("prefix").fail("must be 1 byte");
    const std::uint32_t type = readName(json.at("type"));
    const auto size = static_cast<std::uint32_t>(json.at("size").integer(0, largestSize));
    const int count = json.at("count").integer(1, mostKeys);
    constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::vector<SimulatedSMC::Key> keys;
    for (std::size_t number = 0; number < static_cast<std::size_t>(count); ++number) {
        const std::string name{prefix[0], digits[number / (36 * 36) % 36], digits[number / 36 % 36],
                               digits[number % 36]};
        keys.push_back({.name = smcFourCC(name), .type = type, .size = size});
    }
    return keys;
}

/// Key names that the machine has of its fans, beside those that the profile lists.
std::set<std::uint32_t> namesOfFans(const MachineProfile& profile) {
    std::set<std::uint32_t> names{smcFourCC("FNum")};
    if (profile.unlockSeconds)
        names.insert(smcFourCC("Ftst"));
    for (std::size_t index = 0; index < profile.fans.size(); ++index) {
        for (const std::string& suffix : {std::string("Ac"), std::string("Tg"), std::string("Mn"),
                                          std::string("Mx"), profile.fans[index].modeKeySuffix}) {
            if (!suffix.empty())
                names.insert(smcFourCC(smcFanKey(static_cast<int>(index), suffix)));
        }
    }
    return names;
}

void readKeys(const StrictJson& json, MachineProfile& profile) {
    std::set<std::uint32_t> names = namesOfFans(profile);
    const auto claim = [&names](std::uint32_t name, const StrictJson& where) {
        if (!names.insert(name).second)
            where.fail("the machine already has a key " + keyNameText(name));
    };
    if (const auto sensors = json.find("sensors")) {
        for (const StrictJson& sensor : sensors->elements(mostKeys)) {
            profile.sensors.push_back(readSensor(sensor));
            claim(profile.sensors.back().name, sensor.at("key"));
        }
    }
    if (const auto keys = json.find("keys")) {
        for (const StrictJson& key : keys->elements(mostKeys)) {
            profile.keys.push_back(readKey(key));
            claim(profile.keys.back().name, key.at("name"));
        }
    }
    if (const auto fillers = json.find("filler")) {
        for (const StrictJson& filler : fillers->elements(36)) {
            for (SimulatedSMC::Key& key : readFiller(filler)) {
                claim(key.name, filler);
                profile.keys.push_back(std::move(key));
            }
        }
    }
}

MachineProfile readProfile(const StrictJson& json) {
    json.allowOnly({"model", "cpu", "osVersion", "thermal", "systemControl", "fans",
                    "unlockSeconds", "sensors", "keys", "filler"});
    MachineProfile profile{.model = json.at("model").text(),
                           .cpu = json.at("cpu").text(),
                           .osVersion = json.at("osVersion").text(),
                           .thermal = readThermal(json.at("thermal")),
                           .systemControl = readSystemControl(json.at("systemControl"))};
    for (const StrictJson& fan : json.at("fans").elements(mostFans))
        profile.fans.push_back(readFan(fan));
    if (const auto seconds = json.find("unlockSeconds"))
        profile.unlockSeconds = seconds->number(0, 3600);
    readKeys(json, profile);
    return profile;
}

} // namespace

std::expected<MachineProfile, std::string> parseMachineProfile(std::string_view json) {
    try {
        const auto document = nlohmann::json::parse(json);
        return readProfile(StrictJson(document));
    } catch (const StrictJsonError& error) {
        return std::unexpected(error.what());
    } catch (const nlohmann::json::exception& error) {
        // The library puts its own error number in brackets first.
        const std::string text = error.what();
        const auto bracket = text.find("] ");
        return std::unexpected(bracket == std::string::npos ? text : text.substr(bracket + 2));
    }
}

} // namespace kestrowind
