#pragma once

#include "Simulator/SimulatedSMC.h"

#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrowind {

/// Heat that a part gives off, as the degrees Celsius above ambient that it would settle at in
/// still air: `idle` at no load and `idle + full` at full load.
struct HeatProfile {
    double idle = 0;
    double full = 0;
};

struct ThermalProfile {
    double ambient = 25;     ///< degrees Celsius
    double timeConstant = 7; ///< seconds
    double cooling = 0;      ///< fans at full speed divide the rise above ambient by 1 + cooling
    HeatProfile cpu;
    HeatProfile gpu;
};

/// The system's own fan control, which keeps quiet for long: fans at minimum below one temperature,
/// at maximum from another on, degrees Celsius.
struct SystemControlProfile {
    double quietBelow = 60;
    double fullAt = 98;
};

struct FanProfile {
    double minimum = 0;               ///< revolutions per minute
    double maximum = 0;               ///< revolutions per minute
    double inertia = 1;               ///< time constant in seconds
    std::string modeKeySuffix = "Md"; ///< "Md", "md", or empty for a fan without a mode key
};

/// A die sensor: shows the temperature of its part and a constant difference.
struct SensorProfile {
    enum class Part { cpu, gpu };
    std::uint32_t name = 0; ///< packed four-character code
    Part part = Part::cpu;
    double offset = 0; ///< degrees Celsius
};

/// Everything that makes one model of simulated Mac differ from another.
struct MachineProfile {
    std::string model;
    std::string cpu;
    std::string osVersion;
    ThermalProfile thermal;
    SystemControlProfile systemControl;
    std::vector<FanProfile> fans = {};
    /// Seconds that "Ftst" must be on before a fan may be taken; absent: the machine has no such
    /// key.
    std::optional<double> unlockSeconds = {};
    std::vector<SensorProfile> sensors = {};
    std::vector<SimulatedSMC::Key> keys = {}; ///< as they are, fillers included
};

/// Reads a profile document. The error names the member that is wrong ("fans[1].maximum: ...").
[[nodiscard]] std::expected<MachineProfile, std::string> parseMachineProfile(std::string_view json);

/// A packed key name from its four bytes as text, or from "0x" and eight hexadecimal digits.
[[nodiscard]] std::optional<std::uint32_t> parseKeyName(std::string_view text);
/// The other way round: hexadecimal where the four bytes are not printable ASCII.
[[nodiscard]] std::string keyNameText(std::uint32_t name);

/// Bytes from pairs of hexadecimal digits; absent for anything else.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> parseHexBytes(std::string_view digits);

} // namespace kestrowind
