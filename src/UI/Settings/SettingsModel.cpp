#include "UI/Settings/SettingsModel.h"

namespace kestrowind {

SettingsModel::SettingsModel(const SettingsServices& services)
    : m_helper(services.helper, services.control, services.helperOperation)
    , m_fanBoost(services.userDefaults)
    , m_general(services.userDefaults, services.loginItem)
    , m_notifications(services.userDefaults)
    , m_about(services.information, services.helper) {
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &SettingsModel::takeVisibility);
}

void SettingsModel::setView(QQuickItem* view) {
    if (m_visibility.watch(view))
        Q_EMIT viewChanged();
}

void SettingsModel::takeVisibility() {
    m_helper.setSeen(m_visibility.isSeen());
    if (m_visibility.isSeen())
        m_general.appear();
}

} // namespace kestrowind
