#include "Core/PresetControlState.h"

#include "Core/AppState.h"

namespace kestrowind {

using namespace Qt::StringLiterals;
using Kind = PresetControlState::Kind;
using Tint = PresetControlStatus::Tint;

PresetControlState PresetControlStateResolver::state(HelperState helperState,
                                                     std::optional<HelperControlPhase> controlPhase,
                                                     bool isQuickBoosting) {
    // The first that applies wins.
    if (helperState == HelperState::notInstalled)
        return {Kind::unavailable, PresetControlStatus{u"exclamationmark.triangle.fill"_s,
                                                       {"mainWindow.presetBar.helperMissing"},
                                                       Tint::neutral}};
    if (controlPhase == HelperControlPhase::failed)
        return {Kind::switchable, PresetControlStatus{u"exclamationmark.triangle.fill"_s,
                                                      {"mainWindow.presetBar.hardwareFailure"},
                                                      Tint::warning}};
    if (controlPhase == HelperControlPhase::unlocking)
        return {Kind::busy, PresetControlStatus{u"hourglass"_s,
                                                {"shared.mode.startingBoost"},
                                                Tint::accent,
                                                /*isInProgress=*/true}};
    if (isQuickBoosting)
        return {Kind::switchable,
                PresetControlStatus{u"bolt.fill"_s, {"shared.mode.boosting"}, Tint::warning}};
    return {Kind::switchable};
}

PresetControlState ActivePresetState::current(const AppState& appState) {
    const ControlState::Facts& control = appState.control().facts();
    return PresetControlStateResolver::state(control.helper, control.phase(),
                                             control.isQuickBoosting);
}

} // namespace kestrowind
