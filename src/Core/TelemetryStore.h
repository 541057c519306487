#pragma once

#include "Core/TelemetrySample.h"
#include "Core/TelemetrySampler.h"

#include <QList>
#include <QObject>

#include <chrono>
#include <functional>
#include <optional>

namespace kestrowind {

class UserDefaults;

/// The home of everything measured: the latest sample, half an hour of history, peaks and smoothed
/// temperatures (degrees Celsius). Belongs to the main thread.
///
/// That a sample came, and with it `latest` and `history`, is told by `onSample`; of the other
/// properties observers hear when they really changed. All are told once the whole sample has been
/// taken in, so nobody sees half of it: first whoever drives the fans, then the other handlers,
/// then the observers.
class TelemetryStore final : public QObject {
    Q_OBJECT

public:
    using SampleHandler = std::function<void(const TelemetrySample&)>;

    /// When a handler is called, whatever the order in which handlers came: what is shown of a
    /// sample includes what was done about it.
    enum class Turn {
        control, ///< for what drives the fans
        afterControl,
    };

    /// At 2 seconds a sample, half an hour.
    static constexpr qsizetype historyCapacity = 900;
    static constexpr std::chrono::milliseconds sampleInterval = std::chrono::seconds(2);

    TelemetryStore(const UserDefaults& userDefaults, SMCUserClientFactory makeUserClient);
    ~TelemetryStore() override;

    /// Starts sampling. Until the first sample, `latest` is absent and `smcAvailable` true.
    void start(std::chrono::milliseconds interval = sampleInterval);
    /// For good, on the way to the process's end: some systems end it without leaving main(), and
    /// the sampler's thread must not outlive what it reads. Waits for the call under way.
    void endSampling();
    /// Adds a handler that is called with every sample, on the main thread, for as long as
    /// `context` lives; handlers of one turn in the order in which they came.
    void onSample(const QObject* context, const SampleHandler& handler,
                  Turn turn = Turn::afterControl);
    /// Takes one sample in; what the sampler delivers ends here.
    void ingest(const TelemetrySample& sample);

    [[nodiscard]] const std::optional<TelemetrySample>& latest() const { return m_latest; }
    /// Oldest first.
    [[nodiscard]] const QList<TelemetrySample>& history() const { return m_history; }
    /// Whether the last sample carried any data.
    [[nodiscard]] bool smcAvailable() const { return m_smcAvailable; }
    [[nodiscard]] double peakCPU() const { return m_peakCPU; }
    [[nodiscard]] double peakGPU() const { return m_peakGPU; }
    [[nodiscard]] double cpuHottestSmoothed() const { return m_cpuHottestSmoothed; }
    [[nodiscard]] double gpuHottestSmoothed() const { return m_gpuHottestSmoothed; }

    /// The greater of the smoothed maxima; absent before the first sample.
    [[nodiscard]] std::optional<double> hottestTemperature() const;
    /// The temperature that drives the curves, by the user's choice; absent before the first
    /// sample.
    [[nodiscard]] std::optional<double> systemTemperature() const;

Q_SIGNALS:
    void smcAvailableChanged();
    void peakCPUChanged();
    void peakGPUChanged();
    void cpuHottestSmoothedChanged();
    void gpuHottestSmoothedChanged();

    void sampleForControl(const kestrowind::TelemetrySample& sample, QPrivateSignal);
    void sampleAfterControl(const kestrowind::TelemetrySample& sample, QPrivateSignal);

private:
    const UserDefaults& m_userDefaults;
    std::optional<TelemetrySample> m_latest;
    QList<TelemetrySample> m_history;
    bool m_smcAvailable = true;
    double m_peakCPU = 0;
    double m_peakGPU = 0;
    double m_cpuHottestSmoothed = 0;
    double m_gpuHottestSmoothed = 0;
    /// Absent after endSampling(). Last, so that its thread has ended before anything else goes.
    std::optional<TelemetrySampler> m_sampler;
};

} // namespace kestrowind
