#pragma once

#include "Shared/SMCKit/SMCFanReading.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <chrono>
#include <vector>

namespace kestrowind {

/// Everything measured in one tick.
struct TelemetrySample {
    std::chrono::system_clock::time_point timestamp; ///< before any read; the sample's identity
    SMCTemperatureSnapshot temperatures;
    std::vector<SMCFanReading> fans; ///< in index order; empty when they could not be read

    bool operator==(const TelemetrySample&) const = default;
};

} // namespace kestrowind
