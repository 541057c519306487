#include "Core/HelperControlling.h"

#include "Core/LocalizedText.h"
#include "Shared/HelperShared/HelperConstants.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

QString text(HelperState state) {
    switch (state) {
    case HelperState::notInstalled:
        return u"notInstalled"_s;
    case HelperState::installed:
        return u"installed"_s;
    case HelperState::unreachable:
        return u"unreachable"_s;
    }
    Q_UNREACHABLE();
}

QString InstallError::localizedDescription() const {
    switch (kind) {
    case Kind::adminScriptFailed:
        return localized("settings.helper.error.adminScriptFailed").arg(message);
    case Kind::resourcesMissing:
        return localized("settings.helper.error.resourcesMissing");
    case Kind::launchFailed:
        return message;
    }
    Q_UNREACHABLE();
}

HelperControlling::~HelperControlling() = default;

bool HelperControlling::isHelperOutdated() const {
    const auto status = lastStatus();
    return status && status->version != HelperConstants::helperVersion;
}

} // namespace kestrowind
