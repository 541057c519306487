#include "UI/MenuBar/MenuBarTemperature.h"

#include "Core/LocalizedText.h"
#include "Core/TemperatureText.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

MenuBarTemperature MenuBarTemperature::cpu(double celsius) {
    return of(localized("menuBar.temperature.cpu"), u"cpu"_s, celsius);
}

MenuBarTemperature MenuBarTemperature::gpu(double celsius) {
    return of(localized("menuBar.temperature.gpu"), u"cpu.fill"_s, celsius);
}

MenuBarTemperature MenuBarTemperature::of(const QString& label, const QString& symbolName,
                                          double celsius) {
    MenuBarTemperature row{.label = label, .symbolName = symbolName};
    row.isKnown = SMCTemperatureSnapshot::isKnown(celsius);
    row.text = localized("menuBar.temperature.degrees").arg(TemperatureText::whole(celsius));
    row.spokenText = localized("menuBar.temperature.spoken").arg(label, row.text);
    // Not a number differs from itself, and would be news with every sample.
    row.celsius = row.isKnown ? celsius : 0;
    return row;
}

} // namespace kestrowind
