#pragma once

#include "Core/FanPreset.h"
#include "Shared/SMCKit/SMCFanReading.h"

#include <QList>

#include <optional>
#include <span>
#include <vector>

/// What the control engine computes, apart from everything it does.
namespace kestrowind::ControlArithmetic {

/// Degrees Celsius a second by which the smoothed temperature falls at most.
inline constexpr double coolingPerSecond = 0.5;

/// Rises at once, falls slowly, never below what was measured. Temperatures in degrees Celsius,
/// elapsed seconds since the step before, absent at the first; time that ran backwards counts as
/// none.
[[nodiscard]] double smoothedTemperature(double previous, double measured,
                                         std::optional<double> elapsedSeconds);

/// Each fan's demand in percent: the greater of the preset's curve (none: 0) and the boost.
[[nodiscard]] QList<double> requestedPercents(const std::optional<FanPreset>& preset,
                                              double temperature, double quickBoostPercent,
                                              qsizetype fanCount);

/// A demand as a speed between the fan's minimum and maximum, rounded to whole revolutions a
/// minute; 0 without demand, and for a fan whose limits make no sense.
[[nodiscard]] double target(double percent, const SMCFanReading& fan);

/// One target a fan, up to the shorter of the two lists.
[[nodiscard]] std::vector<double> targets(const QList<double>& requestedPercents,
                                          std::span<const SMCFanReading> fans);

} // namespace kestrowind::ControlArithmetic
