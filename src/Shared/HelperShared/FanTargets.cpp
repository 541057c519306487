#include "Shared/HelperShared/FanTargets.h"

#include <cmath>

namespace kestrowind {

std::expected<void, std::string> checkFanSpeeds(std::span<const double> speeds) {
    for (std::size_t index = 0; index < speeds.size(); ++index) {
        const double speed = speeds[index];
        const char* fault = nullptr;
        if (!std::isfinite(speed))
            fault = "is not a finite number";
        else if (speed < 0)
            fault = "is negative";
        else if (speed > highestPlausibleRPM)
            fault = "is implausibly high";
        if (fault)
            return std::unexpected("the speed of fan " + std::to_string(index) + " " + fault);
    }
    return {};
}

std::expected<void, std::string> checkFanTargets(std::span<const double> targets,
                                                 std::size_t fanCount) {
    if (targets.size() != fanCount)
        return std::unexpected(std::to_string(targets.size()) + " targets for " +
                               std::to_string(fanCount) + " fans");
    return checkFanSpeeds(targets);
}

} // namespace kestrowind
