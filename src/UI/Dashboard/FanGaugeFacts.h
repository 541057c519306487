#pragma once

#include "Shared/SMCKit/SMCFanReading.h"

#include <QString>

namespace kestrowind {

/// What the gauge of one fan shows.
struct FanGaugeFacts {
    int index = 0; ///< the fan's number, its identity
    QString name = {};
    QString readout = {};
    QString caption = {};
    QString spoken = {};             ///< the gauge as one sentence
    double fraction = 0;             ///< of the ring, 0 to 1
    double revolutionsPerSecond = 0; ///< of the glyph
    bool isParked = false;           ///< the glyph stands still
    bool isDashed = false;           ///< its line in the chart

    bool operator==(const FanGaugeFacts&) const = default;

    [[nodiscard]] static FanGaugeFacts of(const SMCFanReading& fan, qsizetype position,
                                          qsizetype totalFanCount);
};

namespace FanGaugeReadout {
/// The part of its greatest speed that a fan runs at, 0 to 1 in steps of a thousandth: smaller
/// changes would move the gauge without anybody seeing more.
[[nodiscard]] double speedFraction(const SMCFanReading& fan);
/// Revolutions per second of the glyph: far slower than the fan, so that the eye can follow.
[[nodiscard]] double spinFactor(const SMCFanReading& fan);
} // namespace FanGaugeReadout

} // namespace kestrowind
