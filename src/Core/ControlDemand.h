#pragma once

#include "Core/FanPreset.h"

#include <optional>
#include <vector>

namespace kestrowind {

/// What the engine asked of the helper at one moment, and what that came from.
struct ControlDemand {
    std::optional<FanPreset> preset = {}; ///< absent: automatic
    double temperature = 0;               ///< degrees Celsius, at which the curves were evaluated
    double measuredTemperature = 0;       ///< degrees Celsius; lower while it cools, 0 when unknown
    double boostPercent = 0;
    std::vector<double> targets = {}; ///< RPM, one a fan; empty when nothing was asked for

    bool operator==(const ControlDemand&) const = default;
};

} // namespace kestrowind
