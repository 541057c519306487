#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrowind {

enum class HelperControlPhase {
    idle,        ///< the helper holds no fan; the system controls them
    unlocking,   ///< the helper waits for the firmware to hand the fans over
    controlling, ///< the helper drives the fans
    failed,      ///< the helper could not take or keep control; see HelperStatus::lastError
};

/// The phase's text on the wire.
[[nodiscard]] std::string_view text(HelperControlPhase phase);
[[nodiscard]] std::optional<HelperControlPhase> helperControlPhase(std::string_view text);

/// What the helper reports of itself.
struct HelperStatus {
    std::string version;
    HelperControlPhase phase = HelperControlPhase::idle;
    std::vector<double> autoFloors;       ///< revolutions per minute, per fan
    std::vector<double> effectiveTargets; ///< revolutions per minute, per fan
    double hottestSensorCelsius = 0;
    std::optional<std::string> lastError;

    [[nodiscard]] bool isControlling() const { return phase == HelperControlPhase::controlling; }

    bool operator==(const HelperStatus&) const = default;
};

/// The status document: a UTF-8 JSON object with the field names as keys.
[[nodiscard]] std::string encodeHelperStatus(const HelperStatus& status);

/// A hundred fans and a long error fit in it many times; more is not even parsed.
inline constexpr std::size_t largestHelperStatus = 32 * 1024; ///< bytes

/// Absent for anything but a complete document of no more than that: a missing key, a wrong type, a
/// number that is not finite and an unknown phase all fail the whole; unknown keys are ignored.
[[nodiscard]] std::optional<HelperStatus> decodeHelperStatus(std::string_view document);

} // namespace kestrowind
