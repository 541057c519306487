#pragma once

#include "Core/ControlDemand.h"
#include "Core/ControlState.h"
#include "Core/TelemetrySample.h"

#include <optional>
#include <vector>

namespace kestrowind {

/// Why a fan runs as it does, as a value with its numbers: decided here alone, and worded and drawn
/// from this by everybody who shows it. Speeds in revolutions a minute, temperatures in degrees
/// Celsius, demands in percent.
struct FanReason {
    /// What decides the speed.
    enum class Cause {
        noHelper,          ///< the system controls the fan: nobody could drive it
        automatic,         ///< the system controls it, as the user wishes
        noDemand,          ///< the system controls it: preset and boost ask for nothing
        waitingForControl, ///< the firmware has yet to hand the fan over
        notConfirmed,      ///< asked for, and the helper does not say that it applies it
        curve,             ///< the preset's curve
        quickBoost,        ///< which asks for at least as much as the curve
        safetyFloor,       ///< the helper applies more than it was asked for: the machine is hot
    };
    /// Where the fan is on its way to what is applied.
    enum class Movement { settled, speedingUp, slowingDown };

    Cause cause = Cause::automatic;
    Movement movement = Movement::settled; ///< only of a fan that is driven
    std::optional<QString> preset = {};    ///< the active one's name as stored; absent: automatic
    double temperature = 0;                ///< at which the curve is evaluated
    double measuredTemperature = 0;        ///< lower while it cools; 0 before it was ever measured
    double hottestTemperature = 0;         ///< of any sensor: what the helper's floor looks at
    double curvePercent = 0;               ///< what the preset asks for
    double boostPercent = 0;
    double askedSpeed = 0;
    std::optional<double> appliedSpeed = {}; ///< absent while the helper applies nothing
    double actualSpeed = 0;

    /// Whether the application drives the fan.
    [[nodiscard]] bool isDriven() const { return cause >= Cause::curve; }
    /// The curve still sees more than there is.
    [[nodiscard]] bool isCoolingDown() const;

    bool operator==(const FanReason&) const = default;

    /// Of the fan at this position of a sample: how we stand with the fans, what was asked for, and
    /// what the helper said that it applies of that, one speed a fan or none at all.
    [[nodiscard]] static FanReason of(const ControlState::Facts& control,
                                      const ControlDemand& demand,
                                      const std::vector<double>& appliedSpeeds,
                                      const TelemetrySample& sample, std::size_t position);

    /// The cause as a word that programs read: "curve", "safetyFloor".
    [[nodiscard]] static const char* word(Cause cause);
};

} // namespace kestrowind
