#include "Shared/SMCKit/SMCConnection.h"

#include <array>

namespace kestrowind {

std::string smcFanKey(int fanIndex, std::string_view suffix) {
    return "F" + std::to_string(fanIndex) + std::string(suffix);
}

std::optional<std::string>
FanModeKey::resolve(int fanIndex, const std::function<bool(std::string_view)>& keyExists) {
    for (const std::string_view suffix : {"Md", "md"}) {
        std::string key = smcFanKey(fanIndex, suffix);
        if (keyExists(key))
            return key;
    }
    return std::nullopt;
}

int SMCConnection::fanCount() {
    const auto count = readUInt8("FNum");
    return count ? *count : 0;
}

std::optional<std::string> SMCConnection::fanModeKey(int fanIndex) {
    return FanModeKey::resolve(fanIndex, [this](std::string_view key) { return keyExists(key); });
}

SMCResult<SMCFanReading> SMCConnection::readFan(int fanIndex) {
    SMCFanReading fan{.index = fanIndex};
    const std::array<std::pair<std::string_view, double*>, 4> speeds{{
        {"Ac", &fan.actualRPM},
        {"Tg", &fan.targetRPM},
        {"Mn", &fan.minRPM},
        {"Mx", &fan.maxRPM},
    }};
    for (const auto& [suffix, speed] : speeds) {
        const auto value = readFloat(smcFanKey(fanIndex, suffix));
        if (!value)
            return std::unexpected(value.error());
        *speed = static_cast<double>(*value);
    }
    if (const auto key = fanModeKey(fanIndex)) {
        if (const auto mode = readUInt8(*key))
            fan.modeRaw = *mode;
    }
    return fan;
}

SMCResult<std::vector<SMCFanReading>> SMCConnection::readAllFans() {
    std::vector<SMCFanReading> fans;
    const int count = fanCount();
    fans.reserve(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
        auto fan = readFan(index);
        if (!fan)
            return std::unexpected(fan.error());
        fans.push_back(*fan);
    }
    return fans;
}

} // namespace kestrowind
