#include "UI/Settings/SettingsModel.h"

#include "Platform/SystemInformation.h"

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

QString versionOf(const SystemInformation& information) {
    return u"%1 (%2)"_s.arg(
        information.bundleText(u"CFBundleShortVersionString"_s).value_or(u"1.0"_s),
        information.bundleText(u"CFBundleVersion"_s).value_or(u"1"_s));
}

} // namespace

SettingsModel::SettingsModel(const SettingsServices& services)
    : m_helper(services.helper, services.control, services.helperOperation, services.information)
    , m_fanBoost(services.userDefaults)
    , m_general(services.userDefaults, services.loginItem)
    , m_version(versionOf(services.information)) {
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &SettingsModel::takeVisibility);
}

void SettingsModel::setView(QQuickItem* view) {
    m_visibility.watch(view);
}

void SettingsModel::takeVisibility() {
    m_helper.setSeen(m_visibility.isSeen());
    if (m_visibility.isSeen())
        m_general.appear();
}

} // namespace kestrowind
