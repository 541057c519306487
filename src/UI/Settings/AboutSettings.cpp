#include "UI/Settings/AboutSettings.h"

#include "Core/HelperControlling.h"
#include "Platform/SystemInformation.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

AboutSettings::AboutSettings(const SystemInformation& information, HelperControlling& helper)
    : m_helper(helper)
    , m_version(information.bundleText(u"CFBundleShortVersionString"_s).value_or(u"1.0"_s) +
                u" ("_s + information.bundleText(u"CFBundleVersion"_s).value_or(u"1"_s) + u')') {
    connect(&helper, &HelperControlling::lastStatusChanged, this,
            &AboutSettings::helperVersionChanged);
}

bool AboutSettings::hasHelperVersion() const {
    return m_helper.lastStatus().has_value();
}

QString AboutSettings::helperVersion() const {
    const auto status = m_helper.lastStatus();
    return status ? QString::fromStdString(status->version) : QString();
}

} // namespace kestrowind
