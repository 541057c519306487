#include "Core/TelemetryStore.h"

#include "Core/AssignIfChanged.h"
#include "Core/TemperatureSource.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kestrowind {
namespace {

constexpr double smoothingFactor = 0.4;

/// The first value after a stored 0 is taken as it is.
double smoothed(double previous, double measured) {
    return previous > 0 ? previous + (measured - previous) * smoothingFactor : measured;
}

} // namespace

TelemetryStore::TelemetryStore(const UserDefaults& userDefaults,
                               SMCUserClientFactory makeUserClient)
    : m_userDefaults(userDefaults)
    , m_sampler(std::in_place, std::move(makeUserClient)) {}

TelemetryStore::~TelemetryStore() = default;

void TelemetryStore::start(std::chrono::milliseconds interval) {
    if (!m_sampler)
        return;
    m_sampler->start(interval, [this](const TelemetrySample& sample) {
        // Posted to this object, so a sample that arrives after it is gone is dropped.
        QMetaObject::invokeMethod(
            this, [this, sample] { ingest(sample); }, Qt::QueuedConnection);
    });
}

void TelemetryStore::endSampling() {
    m_sampler.reset();
}

void TelemetryStore::onSample(const QObject* context, const SampleHandler& handler, Turn turn) {
    const auto signal = turn == Turn::control ? &TelemetryStore::sampleForControl
                                              : &TelemetryStore::sampleAfterControl;
    connect(this, signal, context, handler, Qt::DirectConnection);
}

void TelemetryStore::ingest(const TelemetrySample& sample) {
    using Signal = void (TelemetryStore::*)();
    std::vector<Signal> changes;
    const auto set = [&changes](auto& member, const auto& value, Signal signal) {
        if (assignIfChanged(member, value))
            changes.push_back(signal);
    };

    const SMCTemperatureSnapshot& read = sample.temperatures;
    m_latest = sample;
    set(m_smcAvailable, !sample.fans.empty() || read.hottest > 0,
        &TelemetryStore::smcAvailableChanged);
    set(m_cpuHottestSmoothed, smoothed(m_cpuHottestSmoothed, read.cpuMax),
        &TelemetryStore::cpuHottestSmoothedChanged);
    set(m_gpuHottestSmoothed, smoothed(m_gpuHottestSmoothed, read.gpuMax),
        &TelemetryStore::gpuHottestSmoothedChanged);
    set(m_peakCPU, std::max(m_peakCPU, read.cpuMax), &TelemetryStore::peakCPUChanged);
    set(m_peakGPU, std::max(m_peakGPU, read.gpuMax), &TelemetryStore::peakGPUChanged);

    m_history.append(sample);
    if (m_history.size() > historyCapacity)
        m_history.remove(0, m_history.size() - historyCapacity);

    Q_EMIT sampleForControl(sample, {});
    Q_EMIT sampleAfterControl(sample, {});
    for (const Signal signal : changes)
        Q_EMIT(this->*signal)();
}

std::optional<double> TelemetryStore::hottestTemperature() const {
    if (!m_latest)
        return std::nullopt;
    return std::max(m_cpuHottestSmoothed, m_gpuHottestSmoothed);
}

std::optional<double> TelemetryStore::systemTemperature() const {
    if (currentTemperatureSource(m_userDefaults) == TemperatureSource::hottestCore)
        return hottestTemperature();
    if (!m_latest)
        return std::nullopt;
    return std::max(m_latest->temperatures.cpuAverage, m_latest->temperatures.gpuAverage);
}

} // namespace kestrowind
