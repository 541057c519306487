#include "UI/MenuBar/MenuBarReading.h"

#include "Core/LocalizedText.h"
#include "Core/TelemetryStore.h"
#include "Core/TemperatureText.h"
#include "Core/WholeNumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrowind {
namespace {

/// The largest speed that is a number; not a number when there are fans but no such speed.
double fastest(const std::vector<SMCFanReading>& fans) {
    if (fans.empty())
        return 0;
    double speed = std::numeric_limits<double>::quiet_NaN();
    for (const SMCFanReading& fan : fans) {
        if (std::isfinite(fan.actualRPM))
            speed = std::fmax(speed, fan.actualRPM);
    }
    return speed;
}

} // namespace

MenuBarReading MenuBarReading::of(const TelemetryStore& telemetry) {
    const auto& sample = telemetry.latest();
    if (!sample)
        return {WholeNumberText::unknown(), WholeNumberText::unknown()};
    const double celsius = telemetry.systemTemperature().value_or(sample->temperatures.hottest);
    return {TemperatureText::whole(celsius), WholeNumberText::truncated(fastest(sample->fans))};
}

QString MenuBarReading::temperatureText() const {
    return localized("menuBar.item.temperature").arg(temperature);
}

QString MenuBarReading::fanText() const {
    return localized("menuBar.item.fanSpeed").arg(fanSpeed);
}

} // namespace kestrowind
