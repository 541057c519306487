#include "Simulator/Services/MachineStatus.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCKit/SMCCodec.h"
#include "Simulator/Link/SimulatedMac.h"

#include <cmath>
#include <fstream>

namespace kestrowind {
namespace {

using Json = nlohmann::json;

std::string hex(const std::vector<std::uint8_t>& bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 0xf];
    }
    return text;
}

/// The number in a value, for the types whose meaning is known; null otherwise.
Json decoded(const SimulatedSMC::Key& key) {
    const std::string type = smcFourCCString(key.type);
    if (type == "flt " && key.bytes.size() == 4) {
        const float value = decodeFloat(std::span(key.bytes).first<4>());
        return std::isfinite(value) ? Json(value) : Json();
    }
    const bool isUnsigned = type == "ui8 " || type == "ui16" || type == "ui32" || type == "flag";
    if (!isUnsigned || key.bytes.empty() || key.bytes.size() > 4)
        return {};
    std::uint32_t value = 0;
    for (const std::uint8_t byte : key.bytes)
        value = value << 8 | byte;
    return value;
}

Json keysStatus(const SimulatedSMC& smc) {
    Json keys = Json::array();
    for (const SimulatedSMC::Key& key : smc.keys())
        keys.push_back({{"name", keyNameText(key.name)},
                        {"type", keyNameText(key.type)},
                        {"size", key.size},
                        {"attributes", key.attributes},
                        {"hex", hex(key.bytes)},
                        {"value", decoded(key)}});
    return keys;
}

Json fansStatus(const MachineHardware& hardware) {
    Json fans = Json::array();
    for (const MachineHardware::Fan& fan : hardware.fans())
        fans.push_back({{"index", fans.size()},
                        {"actualRPM", fan.actualRPM},
                        {"targetRPM", fan.targetRPM},
                        {"minRPM", fan.profile.minimum},
                        {"maxRPM", fan.profile.maximum},
                        {"mode", fan.manual ? "manual" : "system"}});
    return fans;
}

Json helperStatus(Machine& machine) {
    const auto job = machine.launchd().job(HelperConstants::machServiceName);
    const Launchd::JobState state = job.value_or(Launchd::JobState());
    std::ifstream file(SimulatedMac::helperBehaviourFile(machine.root()));
    const Json behaviour = file ? Json::parse(file, nullptr, false) : Json{{"kind", "normal"}};
    return {{"bootstrapped", job.has_value()},
            {"pid", state.pid ? Json(*state.pid) : Json()},
            {"starts", state.starts},
            {"lastExit", state.lastExit ? Json(*state.lastExit) : Json()},
            {"behaviour", behaviour.is_discarded() ? Json() : behaviour}};
}

} // namespace

Json machineStatus(Machine& machine) {
    const MachineHardware& hardware = machine.hardware();
    return {{"model", hardware.profile().model},
            {"load", {{"source", machine.load().text()}, {"value", hardware.load()}}},
            {"temperatures",
             {{"cpu", hardware.temperatures().cpu()}, {"gpu", hardware.temperatures().gpu()}}},
            {"fans", fansStatus(hardware)},
            {"helper", helperStatus(machine)},
            {"keys", keysStatus(machine.smc())}};
}

} // namespace kestrowind
