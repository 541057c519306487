#include "Core/ControlEngine.h"

#include "Core/AssignIfChanged.h"
#include "Core/ControlArithmetic.h"
#include "Core/Logging.h"
#include "Core/PresetStore.h"
#include "Core/TelemetryStore.h"

#include <QPointer>

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

QString listText(const QList<double>& numbers) {
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number));
    return u'[' + texts.join(u", "_s) + u']';
}

} // namespace

ControlEngine::ControlEngine(TelemetryStore& telemetry, PresetStore& presets,
                             HelperControlling& helper, Clock now,
                             std::chrono::milliseconds controlPatience)
    : m_telemetry(telemetry)
    , m_presets(presets)
    , m_helper(helper)
    , m_now(std::move(now))
    , m_watch(controlPatience) {
    m_pushTimer.setSingleShot(true);
    m_pushTimer.setTimerType(Qt::PreciseTimer);
    m_pushTimer.setInterval(pushDelay);
    connect(&m_pushTimer, &QTimer::timeout, this, [this] {
        if (const auto& latest = m_telemetry.latest())
            pushTargets(latest->fans);
    });
    m_telemetry.onSample(
        this,
        [this](const TelemetrySample& sample) {
            updateSmoothedTemperature(m_now());
            pushTargets(sample.fans);
        },
        TelemetryStore::Turn::control);
}

ControlEngine::~ControlEngine() = default;

void ControlEngine::setQuickBoostPercent(double percent) {
    if (assignIfChanged(m_quickBoostPercent, percent))
        Q_EMIT quickBoostPercentChanged();
    pushSoon();
}

void ControlEngine::pushSoon() {
    m_pushTimer.start();
}

void ControlEngine::updateSmoothedTemperature(std::chrono::system_clock::time_point now) {
    std::optional<double> elapsed;
    if (m_lastTickDate)
        elapsed = std::chrono::duration<double>(now - *m_lastTickDate).count();
    m_lastTickDate = now;
    m_smoothedTemperature = ControlArithmetic::smoothedTemperature(
        m_smoothedTemperature, m_telemetry.systemTemperature().value_or(0), elapsed);
}

void ControlEngine::pushTargets(const std::vector<SMCFanReading>& fans) {
    // A sample in the middle of quitting must not take the fans again.
    if (m_isShutDown)
        return;
    if (fans.empty() || !m_helper.isInstalled()) {
        qCDebug(engineLog).nospace()
            << "not pushing: fans=" << fans.size() << " helperInstalled=" << m_helper.isInstalled();
        setRequestedPercents({});
        m_answeredDemand = {};
        setIsOverriding(false);
        if (!m_helper.isInstalled())
            setIsWanted(false);
        m_watch.clear();
        return;
    }
    const auto preset = m_presets.activePreset();
    const QList<double> requested = ControlArithmetic::requestedPercents(
        preset, m_smoothedTemperature, m_quickBoostPercent, static_cast<qsizetype>(fans.size()));
    setRequestedPercents(requested);
    qCDebug(engineLog).noquote().nospace()
        << "push: preset=" << (preset ? preset->name : u"none"_s)
        << " temperature=" << QString::number(m_smoothedTemperature, 'f', 6)
        << " percents=" << listText(requested);

    setIsWanted(std::ranges::any_of(requested, [](double percent) { return percent > 0; }));
    push({.preset = preset,
          .temperature = m_smoothedTemperature,
          .measuredTemperature = m_telemetry.systemTemperature().value_or(0),
          .boostPercent = m_quickBoostPercent,
          .targets = m_isWanted ? ControlArithmetic::targets(requested, fans)
                                : HelperControlling::Targets()});
}

QCoro::Task<void> ControlEngine::push(ControlDemand demand) {
    // While a call is awaited the engine, and the helper with it, may go.
    const QPointer<ControlEngine> engine(this);
    const bool isRequested = !demand.targets.empty();
    m_watch.expect();
    if (isRequested) {
        auto applied = co_await m_helper.setTargets(demand.targets);
        if (!engine)
            co_return;
        setApplied(std::move(applied), demand);
    } else {
        if (m_isOverriding)
            co_await m_helper.releaseControl();
        if (!engine)
            co_return;
        setApplied(std::nullopt, demand);
    }
    const auto status = co_await m_helper.fetchStatus();
    if (engine && !isRequested && status)
        m_watch.clear();
}

QCoro::Task<void> ControlEngine::shutDown() {
    const QPointer<ControlEngine> engine(this);
    m_pushTimer.stop();
    m_isShutDown = true;
    co_await m_helper.releaseControl();
    if (engine)
        setApplied(std::nullopt);
}

void ControlEngine::setRequestedPercents(const QList<double>& percents) {
    if (assignIfChanged(m_requestedPercents, percents))
        Q_EMIT requestedPercentsChanged();
}

void ControlEngine::setApplied(std::optional<HelperControlling::Targets> applied,
                               const ControlDemand& demand) {
    m_answeredDemand = demand;
    const auto isDriven = [](double target) { return target > 0; };
    if (applied && std::ranges::any_of(*applied, isDriven))
        m_watch.clear();
    if (assignIfChanged(m_effectiveTargets, applied.value_or(HelperControlling::Targets())))
        Q_EMIT effectiveTargetsChanged();
    setIsOverriding(!m_effectiveTargets.empty());
    Q_EMIT demandAnswered();
}

void ControlEngine::setIsOverriding(bool isOverriding) {
    if (!assignIfChanged(m_isOverriding, isOverriding))
        return;
    Q_EMIT isOverridingChanged();
    Q_EMIT isAtWorkChanged();
}

void ControlEngine::setIsWanted(bool isWanted) {
    if (assignIfChanged(m_isWanted, isWanted))
        Q_EMIT isAtWorkChanged();
}

} // namespace kestrowind
