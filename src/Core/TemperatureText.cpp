#include "Core/TemperatureText.h"

#include "Core/WholeNumberText.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <QLocale>

namespace kestrowind {

QString TemperatureText::whole(double celsius) {
    return SMCTemperatureSnapshot::isKnown(celsius) ? WholeNumberText::rounded(celsius)
                                                    : WholeNumberText::unknown();
}

QString TemperatureText::precise(double celsius) {
    return SMCTemperatureSnapshot::isKnown(celsius)
               ? QLocale().toString(celsius, 'f', celsius < 100 ? 1 : 0)
               : WholeNumberText::unknown();
}

} // namespace kestrowind
