#include "UI/Dashboard/DashboardModel.h"

#include "Core/AppState.h"
#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "UI/Dashboard/FanSpeedHistory.h"
#include "UI/Dashboard/HistorySamples.h"
#include "UI/Dashboard/TemperatureHistory.h"

namespace kestrowind {

DashboardModel::DashboardModel(AppState& appState, FileDialogs& fileDialogs, QObject* parent)
    : QObject(parent)
    , m_appState(appState)
    , m_historyExport(appState.telemetry(), fileDialogs) {
    appState.telemetry().onSample(this, [this](const TelemetrySample&) { takeSample(); });
    connect(&appState.control(), &ControlState::changed, this,
            &DashboardModel::helperMissingChanged);
    connect(&appState.control(), &ControlState::changed, this, &DashboardModel::refreshFans);
    connect(&appState.engine(), &ControlEngine::demandAnswered, this, &DashboardModel::refreshFans);
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &DashboardModel::refreshIfSeen);
    takeSample();
}

DashboardModel::State DashboardModel::select(const TelemetryStore& telemetry) {
    if (!telemetry.latest())
        return State::Loading;
    return telemetry.smcAvailable() && !telemetry.latest()->fans.empty() ? State::Content
                                                                         : State::Unsupported;
}

void DashboardModel::setView(QQuickItem* view) {
    m_visibility.watch(view);
    refreshIfSeen();
}

void DashboardModel::takeSample() {
    // What a state shows is there before the state is.
    refreshIfSeen();
    if (assignIfChanged(m_state, select(m_appState.telemetry())))
        Q_EMIT stateChanged();
}

bool DashboardModel::helperMissing() const {
    return m_appState.control().facts().isHelperMissing();
}

bool DashboardModel::isRefreshWanted() const {
    return (!m_visibility.item() || m_visibility.isSeen()) &&
           select(m_appState.telemetry()) == State::Content;
}

void DashboardModel::refreshIfSeen() {
    if (!isRefreshWanted())
        return;
    refreshFans();
    refreshTemperatures();
    refreshHistory();
}

void DashboardModel::refreshFans() {
    if (!isRefreshWanted())
        return;
    const TelemetryStore& telemetry = m_appState.telemetry();
    m_fans.setRows(FanGaugeFacts::of(telemetry.latest()->fans, m_appState.fanReasons()));
}

void DashboardModel::refreshTemperatures() {
    const TelemetryStore& telemetry = m_appState.telemetry();
    const SMCTemperatureSnapshot& latest = telemetry.latest()->temperatures;
    if (assignIfChanged(m_cpu, TemperatureFacts::of(localized("dashboard.temperature.cpuTitle"),
                                                    {.average = latest.cpuAverage,
                                                     .hottestCore = telemetry.cpuHottestSmoothed(),
                                                     .sessionPeak = telemetry.peakCPU()})))
        Q_EMIT cpuChanged();
    if (assignIfChanged(m_gpu, TemperatureFacts::of(localized("dashboard.temperature.gpuTitle"),
                                                    {.average = latest.gpuAverage,
                                                     .hottestCore = telemetry.gpuHottestSmoothed(),
                                                     .sessionPeak = telemetry.peakGPU()})))
        Q_EMIT gpuChanged();
}

void DashboardModel::refreshHistory() {
    const QList<TelemetrySample>& history = m_appState.telemetry().history();
    if (assignIfChanged(m_windowCaption, HistorySamples::windowCaption(history)))
        Q_EMIT windowCaptionChanged();
    const bool hasHistory = HistorySamples::areEnough(history);
    if (hasHistory) {
        const QList<TelemetrySample> samples = HistorySamples::downsampled(history);
        m_temperatures = TemperatureHistory::chart(samples);
        m_fanSpeeds = FanSpeedHistory::chart(samples);
        Q_EMIT historyChanged();
    }
    if (assignIfChanged(m_hasHistory, hasHistory))
        Q_EMIT hasHistoryChanged();
}

} // namespace kestrowind
