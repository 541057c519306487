#pragma once

#include "Shared/HelperShared/HelperStatus.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <chrono>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrowind {

/// What the helper does with the fans, apart from how it is talked to.
///
/// It takes a machine's fans when it is given targets, keeps every fan at or above the temperature
/// safety floor, and gives the fans back to the system when told to, when something goes wrong, and
/// when no targets have come for the heartbeat time: whoever only asks for the status has lost
/// interest in the fans, or does not know that it holds them. Belongs to one thread.
class FanController {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    template <class T>
    using Result = std::expected<T, std::string>;

    /// What happens on its own (tick) need not be asked for more often than this.
    static constexpr std::chrono::milliseconds tickInterval{250};
    /// Firmware that has not handed the fans over after this long will not.
    static constexpr std::chrono::seconds unlockLimit{12};

    /// Begins by giving the fans back, in case a predecessor died holding them.
    explicit FanController(SMCUserClientFactory makeUserClient,
                           Clock now = &std::chrono::steady_clock::now);
    ~FanController();
    FanController(const FanController&) = delete;
    FanController& operator=(const FanController&) = delete;

    /// Takes targets in revolutions per minute, one a fan, whoever they come from. Returns what is
    /// applied of them: at least the floor of each fan, and 0 for a fan that is left to the system.
    /// The error is for requests that make no sense here; failures of the hardware are reported
    /// by status() instead.
    [[nodiscard]] Result<std::vector<double>> setTargets(std::span<const double> targets);

    /// Gives the fans back to the system and forgets the targets.
    void releaseControl();

    /// Gives the fans back and reports this as the reason.
    void fail(const std::string& why);

    /// Does what is due by now: next attempt to unlock, new floors, end of patience, and handing
    /// back what could not be reached when it was to be.
    void tick();

    [[nodiscard]] HelperStatus status();
    [[nodiscard]] HelperControlPhase phase() const { return m_phase; }
    /// Whether fans are held, or about to be.
    [[nodiscard]] bool isHolding() const;
    /// Whether tick() has anything to do: fans are held, or could not all be handed back.
    [[nodiscard]] bool needsTicks() const { return isHolding() || m_isHandBackDue; }

private:
    struct Fan {
        double minRPM = 0;
        double maxRPM = 0;
        std::string targetKey;
        std::string modeKey; ///< empty when the fan has none
        double target = 0;   ///< as asked for
    };
    using TimePoint = std::chrono::steady_clock::time_point;

    [[nodiscard]] Result<void> open();
    [[nodiscard]] Result<void> takeFans();
    void readTemperature();
    void attemptUnlock();
    void applyTargets();
    [[nodiscard]] SMCResult<void> drive(const Fan& fan);
    void handBack();
    [[nodiscard]] double floorRPM(const Fan& fan) const;
    [[nodiscard]] double effectiveTarget(const Fan& fan) const;
    [[nodiscard]] std::vector<double> effectiveTargets() const;

    SMCUserClientFactory m_makeUserClient;
    Clock m_now;
    std::unique_ptr<SMCConnection> m_smc;
    std::optional<SMCTemperatureSensors> m_sensors;
    std::vector<Fan> m_fans;
    HelperControlPhase m_phase = HelperControlPhase::idle;
    bool m_isHandBackDue = false; ///< a write of the last hand-back failed
    std::optional<std::string> m_lastError;
    double m_hottest; ///< degrees Celsius; not a number without any reading
    std::optional<TimePoint> m_temperatureReadAt;
    TimePoint m_lastWord;
    TimePoint m_unlockSince;
};

} // namespace kestrowind
