#pragma once

#include "Core/FanFacts.h"

namespace kestrowind {

/// What the gauge of one fan shows.
struct FanGaugeFacts {
    int index = 0; ///< the fan's number, its identity
    QString name = {};
    QString readout = {};
    QString caption = {};
    QString spoken = {};             ///< the gauge as one sentence
    double fraction = 0;             ///< of the ring, 0 to 1 in steps of a thousandth
    double revolutionsPerSecond = 0; ///< of the glyph
    bool isParked = false;           ///< the glyph stands still
    bool isDashed = false;           ///< its line in the chart

    bool operator==(const FanGaugeFacts&) const = default;

    [[nodiscard]] static FanGaugeFacts of(const SMCFanReading& fan, qsizetype position,
                                          qsizetype totalFanCount);
};

} // namespace kestrowind
