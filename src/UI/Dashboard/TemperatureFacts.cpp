#include "UI/Dashboard/TemperatureFacts.h"

#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <QLocale>

namespace kestrowind {

namespace TemperatureReadout {

QString number(double celsius) {
    if (!SMCTemperatureSnapshot::isKnown(celsius))
        return WholeNumberText::unknown();
    return QLocale().toString(celsius, 'f', celsius < 100 ? 1 : 0);
}

QString withUnit(double celsius) {
    return localized("gauge.readout.degrees").arg(number(celsius));
}

} // namespace TemperatureReadout

TemperatureFacts TemperatureFacts::of(const QString& title, const Celsius& celsius) {
    using namespace TemperatureReadout;
    // The captions take single precision: sensors know no more.
    const auto hottestCore = static_cast<double>(static_cast<float>(celsius.hottestCore));
    const auto sessionPeak = static_cast<double>(static_cast<float>(celsius.sessionPeak));
    TemperatureFacts facts;
    facts.title = title;
    facts.average = withUnit(celsius.average);
    facts.hottestCore =
        localized("dashboard.temperature.hottestCoreCaption").arg(number(hottestCore));
    facts.sessionPeak = localized("dashboard.temperature.sessionPeak").arg(number(sessionPeak));
    facts.spoken = localized("dashboard.temperature.spoken")
                       .arg(title, facts.average, facts.hottestCore, facts.sessionPeak);
    return facts;
}

} // namespace kestrowind
