#include "UI/Settings/NotificationSettings.h"

#include "Platform/UserDefaults.h"

#include <algorithm>

namespace kestrowind {

NotificationSettings::NotificationSettings(UserDefaults& userDefaults)
    : m_userDefaults(userDefaults) {
    connect(&userDefaults, &UserDefaults::changed, this, [this](const QString& key) {
        if (std::ranges::find(alertKinds, key, &alertKey) != alertKinds.end())
            Q_EMIT changed();
    });
}

bool NotificationSettings::isWanted(AlertKind kind) const {
    return m_userDefaults.boolean(alertKey(kind));
}

void NotificationSettings::set(AlertKind kind, bool wanted) {
    m_userDefaults.setBoolean(alertKey(kind), wanted);
    // A launch argument may count instead: what is shown follows.
    Q_EMIT changed();
}

} // namespace kestrowind
