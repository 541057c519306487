#include "UI/Settings/SettingSwitch.h"

#include "Platform/UserDefaults.h"

namespace kestrowind {

SettingSwitch::SettingSwitch(UserDefaults& userDefaults, const QString& key, const QString& title,
                             const QString& subtitle, QObject* parent)
    : QObject(parent)
    , m_userDefaults(userDefaults)
    , m_key(key)
    , m_title(title)
    , m_subtitle(subtitle) {
    connect(&userDefaults, &UserDefaults::changed, this, [this](const QString& changed) {
        if (changed == m_key)
            Q_EMIT isOnChanged();
    });
}

bool SettingSwitch::isOn() const {
    return m_userDefaults.boolean(m_key);
}

void SettingSwitch::setOn(bool isOn) {
    m_userDefaults.setBoolean(m_key, isOn);
}

} // namespace kestrowind
