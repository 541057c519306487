#pragma once

namespace kestrowind::HelperSafetyFloor {

/// The least fan demand in percent that the helper allows at a temperature, whatever it was told:
/// 0 below 60 degrees Celsius, then piecewise linear through (75, 25), (85, 70) and (90, 100).
/// Not-a-number is the worst case: 100.
[[nodiscard]] double floorPercent(double hottestCelsius);

} // namespace kestrowind::HelperSafetyFloor
