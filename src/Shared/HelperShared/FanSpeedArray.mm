#include "Shared/HelperShared/FanSpeedArray.h"

namespace kestrowind {

NSArray<NSNumber*>* fanSpeedArray(std::span<const double> speeds) {
    NSMutableArray<NSNumber*>* array = [NSMutableArray arrayWithCapacity:speeds.size()];
    for (const double speed : speeds)
        [array addObject:@(speed)];
    return array;
}

std::optional<std::vector<double>> fanSpeeds(NSArray<NSNumber*>* array) {
    if (![array isKindOfClass:[NSArray class]])
        return std::nullopt;
    std::vector<double> speeds;
    speeds.reserve(array.count);
    for (NSNumber* speed in array) {
        if (![speed isKindOfClass:[NSNumber class]])
            return std::nullopt;
        speeds.push_back(speed.doubleValue);
    }
    return speeds;
}

} // namespace kestrowind
