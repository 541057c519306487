#include "UI/Settings/GeneralSettings.h"

#include "Core/AssignIfChanged.h"
#include "Platform/LoginItem.h"
#include "Platform/UserDefaults.h"

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const QString hideDockIconKey = u"hideDockIconWhenWindowClosed"_s;

} // namespace

GeneralSettings::GeneralSettings(UserDefaults& userDefaults, LoginItem& loginItem)
    : m_userDefaults(userDefaults)
    , m_loginItem(loginItem)
    , m_launchesAtLogin(loginItem.isEnabled()) {
    connect(&userDefaults, &UserDefaults::changed, this, [this](const QString& changed) {
        if (changed == hideDockIconKey)
            Q_EMIT hidesDockIconChanged();
    });
}

void GeneralSettings::setLaunchesAtLogin(bool wanted) {
    showLaunchesAtLogin(wanted);
    if (m_loginItem.isEnabled() == wanted)
        return;
    const auto changed =
        wanted ? m_loginItem.registerApplication() : m_loginItem.unregisterApplication();
    showError(changed ? QString() : changed.error());
    if (!changed)
        showLaunchesAtLogin(m_loginItem.isEnabled());
}

bool GeneralSettings::hidesDockIcon() const {
    return m_userDefaults.boolean(hideDockIconKey);
}

void GeneralSettings::setHidesDockIcon(bool hides) {
    m_userDefaults.setBoolean(hideDockIconKey, hides);
    // A launch argument may count instead: what is shown follows.
    Q_EMIT hidesDockIconChanged();
}

void GeneralSettings::appear() {
    showLaunchesAtLogin(m_loginItem.isEnabled());
}

void GeneralSettings::showLaunchesAtLogin(bool launches) {
    if (assignIfChanged(m_launchesAtLogin, launches))
        Q_EMIT launchesAtLoginChanged();
}

void GeneralSettings::showError(const QString& error) {
    if (assignIfChanged(m_launchAtLoginError, error))
        Q_EMIT launchAtLoginErrorChanged();
}

} // namespace kestrowind
