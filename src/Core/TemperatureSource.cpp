#include "Core/TemperatureSource.h"

#include "Platform/UserDefaults.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

QString text(TemperatureSource source) {
    return source == TemperatureSource::hottestCore ? u"hottestCore"_s : u"average"_s;
}

TemperatureSource currentTemperatureSource(const UserDefaults& userDefaults) {
    const auto stored = userDefaults.string(QString::fromLatin1(temperatureSourceKey));
    return stored == text(TemperatureSource::hottestCore) ? TemperatureSource::hottestCore
                                                          : TemperatureSource::average;
}

} // namespace kestrowind
