#include "UI/MenuBar/MenuBarTemperature.h"

#include "Core/LocalizedText.h"
#include "UI/MenuBar/WholeNumberText.h"

#include <cmath>

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
    row.text = localized("menuBar.temperature.degrees").arg(WholeNumberText::rounded(celsius));
    row.spokenText = localized("menuBar.temperature.spoken").arg(label, row.text);
    row.isKnown = std::isfinite(celsius);
    // Not a number differs from itself, and would be news with every sample.
    row.celsius = row.isKnown ? celsius : 0;
    return row;
}

} // namespace kestrowind
