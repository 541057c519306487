#pragma once

#include <QString>

/// A measured value as whole digits of the language shown; "--" for what is not a finite number.
namespace kestrowind::WholeNumberText {

/// Without its fraction.
[[nodiscard]] QString truncated(double value);
/// Half away from zero.
[[nodiscard]] QString rounded(double value);
[[nodiscard]] QString unknown();

} // namespace kestrowind::WholeNumberText
