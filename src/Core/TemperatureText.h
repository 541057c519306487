#pragma once

#include <QString>

/// A temperature in degrees Celsius as digits of the language shown; "--" for what was never
/// measured.
namespace kestrowind::TemperatureText {

/// Rounded to whole degrees, half away from zero.
[[nodiscard]] QString whole(double celsius);
/// With one fraction digit below 100 and none from there on.
[[nodiscard]] QString precise(double celsius);

} // namespace kestrowind::TemperatureText
