#include "UI/Settings/FanBoostSettings.h"

#include "Core/LocalizedText.h"
#include "Core/TemperatureSource.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <array>

namespace kestrowind {
namespace {

constexpr std::array offered{TemperatureSource::average, TemperatureSource::hottestCore};
const QString settingsKey = QString::fromLatin1(temperatureSourceKey);

} // namespace

FanBoostSettings::FanBoostSettings(UserDefaults& userDefaults)
    : m_userDefaults(userDefaults) {
    connect(&userDefaults, &UserDefaults::changed, this, [this](const QString& changed) {
        if (changed == settingsKey)
            Q_EMIT temperatureSourceChanged();
    });
}

QStringList FanBoostSettings::temperatureSources() const {
    return {localized("settings.fanBoost.temperatureSource.average"),
            localized("settings.fanBoost.temperatureSource.hottest")};
}

int FanBoostSettings::temperatureSource() const {
    const auto* const found = std::ranges::find(offered, currentTemperatureSource(m_userDefaults));
    return static_cast<int>(found - offered.begin());
}

void FanBoostSettings::chooseTemperatureSource(int index) {
    if (index < 0 || index >= static_cast<int>(offered.size()))
        return;
    m_userDefaults.setString(settingsKey, text(offered[static_cast<std::size_t>(index)]));
}

} // namespace kestrowind
