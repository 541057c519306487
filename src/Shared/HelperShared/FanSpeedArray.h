#pragma once

// Objective-C, for the application and the helper on a Mac.

#import <Foundation/Foundation.h>

#include <optional>
#include <span>
#include <vector>

namespace kestrowind {

/// Fan speeds as they travel between the two programs: boxed double-precision numbers.
NSArray<NSNumber*>* fanSpeedArray(std::span<const double> speeds);

/// Absent when it is no list of numbers: the wire lets every kind of property list through.
std::optional<std::vector<double>> fanSpeeds(NSArray<NSNumber*>* array);

} // namespace kestrowind
