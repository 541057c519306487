#include "UI/Dashboard/TemperatureFacts.h"

#include "Core/LocalizedText.h"
#include "Core/TemperatureText.h"

namespace kestrowind {

TemperatureFacts TemperatureFacts::of(const QString& title, const Celsius& celsius) {
    using TemperatureText::precise;
    // The captions take single precision: sensors know no more.
    const auto hottestCore = static_cast<double>(static_cast<float>(celsius.hottestCore));
    const auto sessionPeak = static_cast<double>(static_cast<float>(celsius.sessionPeak));
    TemperatureFacts facts;
    facts.title = title;
    facts.average = localized("gauge.readout.degrees").arg(precise(celsius.average));
    facts.hottestCore =
        localized("dashboard.temperature.hottestCoreCaption").arg(precise(hottestCore));
    facts.sessionPeak = localized("dashboard.temperature.sessionPeak").arg(precise(sessionPeak));
    facts.spoken = localized("dashboard.temperature.spoken")
                       .arg(title, facts.average, facts.hottestCore, facts.sessionPeak);
    return facts;
}

} // namespace kestrowind
