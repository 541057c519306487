#pragma once

#include <QString>

namespace kestrowind {

class TelemetryStore;

/// What the menu bar says: the hottest temperature over the fastest fan's speed, as digits.
struct MenuBarReading {
    QString temperature; ///< degrees Celsius
    QString fanSpeed;    ///< revolutions per minute

    [[nodiscard]] static MenuBarReading of(const TelemetryStore& telemetry);

    /// The two lines with their units.
    [[nodiscard]] QString temperatureText() const;
    [[nodiscard]] QString fanText() const;

    bool operator==(const MenuBarReading&) const = default;
};

} // namespace kestrowind
