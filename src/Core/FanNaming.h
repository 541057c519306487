#pragma once

#include <QString>

namespace kestrowind {

/// A fan's display name: left and right where there are exactly two, otherwise its number from 1.
[[nodiscard]] QString sharedFanName(int forIndex, int totalFanCount);

} // namespace kestrowind
