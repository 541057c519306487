#include "Shared/HelperShared/HelperSafetyFloor.h"

namespace kestrowind {

double HelperSafetyFloor::floorPercent(double hottestCelsius) {
    const double t = hottestCelsius;
    if (t < 60)
        return 0;
    if (t < 75)
        return (t - 60) / 15 * 25;
    if (t < 85)
        return 25 + (t - 75) / 10 * 45;
    if (t < 90)
        return 70 + (t - 85) / 5 * 30;
    return 100;
}

} // namespace kestrowind
