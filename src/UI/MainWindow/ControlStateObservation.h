#pragma once

#include "Core/AppState.h"
#include "Core/PresetControlState.h"

namespace kestrowind {

/// Calls a member of `observer` whenever a fact changed that ActivePresetState::current() derives
/// the control state from.
template <class Observer>
void observeControlState(AppState& appState, Observer& observer, void (Observer::*changed)()) {
    const HelperControlling& helper = appState.helper();
    const ControlEngine& engine = appState.engine();
    QObject::connect(&helper, &HelperControlling::stateChanged, &observer, changed);
    QObject::connect(&helper, &HelperControlling::lastStatusChanged, &observer, changed);
    QObject::connect(&engine, &ControlEngine::isOverridingChanged, &observer, changed);
    QObject::connect(&engine, &ControlEngine::quickBoostPercentChanged, &observer, changed);
}

} // namespace kestrowind
