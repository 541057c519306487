#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace kestrowind {

/// One fan as the SMC reports it. Speeds are revolutions per minute, as read: neither rounded nor
/// checked.
struct SMCFanReading {
    int index = 0; ///< zero-based fan number, the reading's identity in lists
    double actualRPM = 0;
    double targetRPM = 0; ///< speed the SMC is steering towards
    double minRPM = 0;
    double maxRPM = 0;
    std::optional<std::uint8_t> modeRaw = {}; ///< absent without a readable mode key

    /// Somebody drives it, and it stays as it is when nobody does any more: the mode that a helper
    /// puts it into.
    [[nodiscard]] bool isManual() const { return modeRaw == 1; }

    bool operator==(const SMCFanReading&) const = default;
};

/// "F", the fan's number and a two-letter suffix: "F0Ac".
[[nodiscard]] std::string smcFanKey(int fanIndex, std::string_view suffix);

namespace FanModeKey {
/// The spelling of a fan's mode key on this machine, "F0Md" before "F0md"; absent without either.
[[nodiscard]] std::optional<std::string>
resolve(int fanIndex, const std::function<bool(std::string_view)>& keyExists);
} // namespace FanModeKey

} // namespace kestrowind
