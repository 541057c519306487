#pragma once

#include "Shared/SMCKit/SMCFanReading.h"

#include <QString>

namespace kestrowind {

/// What is said of a fan wherever one is shown.
struct FanFacts {
    int index = 0;      ///< the fan's number, its identity
    QString name = {};  ///< as displayed
    QString speed = {}; ///< whole revolutions a minute as digits
    bool isStill = false;
    double fraction = 0; ///< of its highest speed, 0 to 1; 0 where nobody can say
    bool hasFraction = false;

    [[nodiscard]] static FanFacts of(const SMCFanReading& fan, qsizetype totalFanCount);

    bool operator==(const FanFacts&) const = default;
};

} // namespace kestrowind
