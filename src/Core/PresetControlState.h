#pragma once

#include "Core/HelperControlling.h"
#include "Core/LocalizedText.h"

#include <QString>

#include <optional>

namespace kestrowind {

class AppState;

/// What a view says beside the presets while there is something to say.
struct PresetControlStatus {
    /// The colour's role; the colours belong to the views.
    enum class Tint { accent, warning, neutral };

    QString symbolName;
    LocalizedText text;
    Tint tint = Tint::neutral;
    bool isInProgress = false; ///< an operation is still running

    bool operator==(const PresetControlStatus&) const = default;
};

/// Whether presets can be switched right now.
struct PresetControlState {
    enum class Kind {
        switchable,  ///< with a status or without
        busy,        ///< the helper is taking the fans over; always with a status
        unavailable, ///< the helper is not installed; always with a status
    };
    Kind kind = Kind::switchable;
    std::optional<PresetControlStatus> status = {};

    bool operator==(const PresetControlState&) const = default;
};

namespace PresetControlStateResolver {
/// `controlPhase` is absent while the helper has reported no status.
[[nodiscard]] PresetControlState state(HelperState helperState,
                                       std::optional<HelperControlPhase> controlPhase,
                                       bool isQuickBoosting);
} // namespace PresetControlStateResolver

namespace ActivePresetState {
/// The state of the running application, now.
[[nodiscard]] PresetControlState current(const AppState& appState);
} // namespace ActivePresetState

} // namespace kestrowind
