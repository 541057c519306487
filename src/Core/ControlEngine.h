#pragma once

#include "Core/ControlDemand.h"
#include "Core/ControlWatch.h"
#include "Core/HelperControlling.h"
#include "Shared/SMCKit/SMCFanReading.h"

#include <QCoroTask>
#include <QList>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace kestrowind {

class PresetStore;
class TelemetryStore;

/// Turns the active preset, the temperature and the quick boost into targets and hands them to the
/// helper: once a sample, and shortly after the user changed something. Belongs to the main thread.
///
/// Requested, effective and measured stay apart: `requestedPercents` is what was asked for,
/// `effectiveTargets` what the helper said it applies, and the samples what the fans do.
class ControlEngine final : public QObject {
    Q_OBJECT

public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// A burst of changes within this time is one push.
    static constexpr std::chrono::milliseconds pushDelay{120};

    /// Registers itself for samples. The three must outlive the engine.
    ControlEngine(TelemetryStore& telemetry, PresetStore& presets, HelperControlling& helper,
                  Clock now = &std::chrono::system_clock::now,
                  std::chrono::milliseconds controlPatience = ControlWatch::defaultPatience);
    ~ControlEngine() override;

    /// A floor for every fan's demand in percent; 0 is no boost.
    [[nodiscard]] double quickBoostPercent() const { return m_quickBoostPercent; }
    /// Every assignment asks for a push, even of the same value.
    void setQuickBoostPercent(double percent);

    /// The demand of the last push in percent, in fan order.
    [[nodiscard]] const QList<double>& requestedPercents() const { return m_requestedPercents; }
    /// What the helper applies since the last push (RPM); empty while it does not control.
    [[nodiscard]] const std::vector<double>& effectiveTargets() const { return m_effectiveTargets; }
    /// What was asked for when the helper said what it applies; kept together with
    /// effectiveTargets, while the next demand may be under way already.
    [[nodiscard]] const ControlDemand& answeredDemand() const { return m_answeredDemand; }
    /// Whether the application drives the fans.
    [[nodiscard]] bool isOverriding() const { return m_isOverriding; }
    /// Whether it drives the fans or tries to. Neither a call that the helper did not answer nor a
    /// sample without fans ends that: targets stand, and the next ones have to be in time for them.
    [[nodiscard]] bool isAtWork() const { return m_isOverriding || m_isWanted; }
    /// The temperature at which the curves are evaluated, degrees Celsius.
    [[nodiscard]] double smoothedTemperature() const { return m_smoothedTemperature; }

    /// Whether the helper does what it is asked: applies targets, or answers at all while nothing
    /// is requested.
    [[nodiscard]] const ControlWatch& watch() const { return m_watch; }

    /// Asks for a push after pushDelay; asking again starts the delay anew.
    void pushSoon();
    /// Ends all control for good: nothing is pushed any more, and the fans are the system's again.
    [[nodiscard]] QCoro::Task<void> shutDown();

Q_SIGNALS:
    void quickBoostPercentChanged();
    void requestedPercentsChanged();
    void effectiveTargetsChanged();
    void isOverridingChanged();
    void isAtWorkChanged();
    /// With every answer, whether or not anything is another than before.
    void demandAnswered();

private:
    void updateSmoothedTemperature(std::chrono::system_clock::time_point now);
    void pushTargets(const std::vector<SMCFanReading>& fans);
    QCoro::Task<void> push(ControlDemand demand);

    void setRequestedPercents(const QList<double>& percents);
    /// Nothing, or an empty list, means that the application does not control.
    void setApplied(std::optional<HelperControlling::Targets> applied,
                    const ControlDemand& demand = {});
    void setIsOverriding(bool isOverriding);
    void setIsWanted(bool isWanted);

    TelemetryStore& m_telemetry;
    PresetStore& m_presets;
    HelperControlling& m_helper;
    Clock m_now;
    double m_quickBoostPercent = 0;
    QList<double> m_requestedPercents;
    std::vector<double> m_effectiveTargets;
    ControlDemand m_answeredDemand;
    bool m_isOverriding = false;
    bool m_isWanted = false; ///< the last sample with fans asked for targets
    double m_smoothedTemperature = 0;
    std::optional<std::chrono::system_clock::time_point> m_lastTickDate;
    QTimer m_pushTimer;
    ControlWatch m_watch;
    bool m_isShutDown = false;
};

} // namespace kestrowind
