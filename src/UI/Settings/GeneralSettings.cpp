#include "UI/Settings/GeneralSettings.h"

#include "Core/AlertNotifier.h"
#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "Platform/LoginItem.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

GeneralSettings::GeneralSettings(UserDefaults& userDefaults, LoginItem& loginItem)
    : m_loginItem(loginItem)
    , m_launchesAtLogin(loginItem.isEnabled())
    , m_needsApproval(loginItem.needsApproval()) {
    const auto add = [&](const QString& key, const char* title, const char* subtitle) {
        m_switches.append(
            new SettingSwitch(userDefaults, key, localized(title), localized(subtitle), this));
    };
    add(u"hideDockIconWhenWindowClosed"_s, "settings.general.hideDockIcon.title",
        "settings.general.hideDockIcon.subtitle");
    add(alertKey(AlertKind::overheating), "settings.notifications.overheating.title",
        "settings.notifications.overheating.subtitle");
    add(alertKey(AlertKind::fanStandsStill), "settings.notifications.standingFan.title",
        "settings.notifications.standingFan.subtitle");
    add(alertKey(AlertKind::helperFailed), "settings.notifications.helperFailure.title",
        "settings.notifications.helperFailure.subtitle");
}

void GeneralSettings::setLaunchesAtLogin(bool wanted) {
    showLaunchesAtLogin(wanted);
    if (m_loginItem.isEnabled() == wanted)
        return;
    const auto changed =
        wanted ? m_loginItem.registerApplication() : m_loginItem.unregisterApplication();
    showError(changed ? QString() : changed.error());
    askForApproval();
    if (!changed)
        showLaunchesAtLogin(m_loginItem.isEnabled());
}

void GeneralSettings::appear() {
    showLaunchesAtLogin(m_loginItem.isEnabled());
    askForApproval();
}

void GeneralSettings::askForApproval() {
    if (assignIfChanged(m_needsApproval, m_loginItem.needsApproval()))
        Q_EMIT needsApprovalChanged();
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
