#pragma once

#include <expected>
#include <span>
#include <string>

namespace kestrowind {

/// No fan of any machine turns nearly this fast; a target above it is a fault, not a wish.
inline constexpr double highestPlausibleRPM = 100'000;

/// Checks speeds in revolutions per minute that came over the wire: each finite, none negative,
/// none implausibly high. The error says which one is wrong and why.
[[nodiscard]] std::expected<void, std::string> checkFanSpeeds(std::span<const double> speeds);

/// The same for a list of targets, of which there must be one a fan.
[[nodiscard]] std::expected<void, std::string> checkFanTargets(std::span<const double> targets,
                                                               std::size_t fanCount);

} // namespace kestrowind
