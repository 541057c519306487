#include "UI/Settings/SettingsModel.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/VisibilityWatch.h"

namespace kestrowind {

SettingsModel::SettingsModel(const SettingsServices& services)
    : m_helper(services.helper, services.helperOperation)
    , m_fanBoost(services.userDefaults)
    , m_general(services.userDefaults, services.loginItem)
    , m_notifications(services.userDefaults)
    , m_about(services.information, services.helper) {}

SettingsModel::~SettingsModel() = default;

void SettingsModel::setView(QQuickItem* view) {
    if (!assignIfChanged(m_view, view))
        return;
    m_visibility.reset();
    if (view) {
        m_visibility = std::make_unique<VisibilityWatch>(*view);
        connect(m_visibility.get(), &VisibilityWatch::isSeenChanged, this,
                &SettingsModel::takeVisibility);
        connect(view, &QObject::destroyed, this, [this] {
            m_visibility.reset();
            takeVisibility();
        });
    }
    takeVisibility();
    Q_EMIT viewChanged();
}

void SettingsModel::takeVisibility() {
    const bool isSeen = m_visibility && m_visibility->isSeen();
    m_helper.setSeen(isSeen);
    if (isSeen)
        m_general.appear();
}

} // namespace kestrowind
