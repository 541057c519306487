#include "UI/Settings/HelperStatusFacts.h"

#include "Core/LocalizedText.h"

namespace kestrowind {

using namespace Qt::StringLiterals;
using MessageTone::Tone;

HelperStatusFacts HelperStatusFacts::of(const ControlState::Facts& control) {
    switch (control.helper) {
    case HelperState::notInstalled:
        return {.symbolName = u"shield.slash.fill"_s,
                .tone = Tone::Neutral,
                .title = localized("settings.helper.status.notInstalled.title"),
                .description = localized("settings.helper.status.notInstalled.description"),
                .installTitle = localized("settings.helper.installButton"),
                .wantsInstall = true};
    case HelperState::installed: {
        // Whatever its state says, it may do nothing of what it is asked.
        const bool isDenied = control.isDenied;
        return {.symbolName =
                    isDenied ? u"exclamationmark.triangle.fill"_s : u"checkmark.seal.fill"_s,
                .tone = isDenied ? Tone::Warning : Tone::Good,
                .title = isDenied ? localized("settings.helper.status.denied.title")
                                  : localized("settings.helper.status.installed.title"),
                .description = isDenied ? localized("settings.helper.status.denied.description")
                                        : localized("settings.helper.status.installed.description"),
                .installTitle = localized("settings.helper.reinstallButton"),
                .uninstallTitle = localized("settings.helper.uninstallButton")};
    }
    case HelperState::unreachable:
        return {.symbolName = u"exclamationmark.triangle.fill"_s,
                .tone = Tone::Warning,
                .title = localized("settings.helper.status.unreachable.title"),
                .description = localized("settings.helper.status.unreachable.description"),
                .installTitle = localized("settings.helper.reinstallHelperButton"),
                .wantsInstall = true,
                .uninstallTitle = localized("settings.helper.uninstallButton")};
    }
    Q_UNREACHABLE();
}

} // namespace kestrowind
