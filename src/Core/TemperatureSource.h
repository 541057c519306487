#pragma once

#include <QString>

namespace kestrowind {

class UserDefaults;

/// Which temperature drives the fan curves.
enum class TemperatureSource {
    average,     ///< the higher of the CPU's and the GPU's average
    hottestCore, ///< the higher of the two smoothed maxima
};

inline constexpr char temperatureSourceKey[] = "fanBoostTemperatureSource";

/// The stored choice; anything but "hottestCore" is average.
[[nodiscard]] TemperatureSource currentTemperatureSource(const UserDefaults& userDefaults);

/// The text under which a choice is stored.
[[nodiscard]] QString text(TemperatureSource source);

} // namespace kestrowind
