#include "Core/AppState.h"

#include "Core/HelperClient.h"
#include "Platform/Platform.h"

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Curves that a new preset is given: the Macs with the most fans have two.
constexpr int presetFanCount = 2;

} // namespace

AppState::AppState(Platform& platform)
    : m_telemetry(std::make_unique<TelemetryStore>(*platform.userDefaults, platform.smc))
    , m_helper(std::make_unique<HelperClient>(
          HelperClient::Environment{.makeConnection = platform.helperConnection,
                                    .information = *platform.information,
                                    .scriptRunner = *platform.scriptRunner}))
    , m_presets(std::make_unique<PresetStore>(
          presetFanCount, *platform.userDefaults,
          PresetStore::Storage{.folder = platform.information->applicationSupportFolder()}))
    , m_engine(std::make_unique<ControlEngine>(*m_telemetry, *m_presets, *m_helper)) {
    m_telemetry->start();
    if (const auto name = platform.userDefaults->string(u"ActivatePreset"_s))
        activateSessionPreset(*name);
}

AppState::AppState(std::unique_ptr<TelemetryStore> telemetry,
                   std::unique_ptr<HelperControlling> helper, std::unique_ptr<PresetStore> presets,
                   std::unique_ptr<ControlEngine> engine)
    : m_telemetry(std::move(telemetry))
    , m_helper(std::move(helper))
    , m_presets(std::move(presets))
    , m_engine(std::move(engine)) {}

AppState::~AppState() = default;

void AppState::activate(const QString& slotID) {
    const auto slot = PresetSlot::fromId(slotID);
    if (!slot || !(slot->isAutomatic() || m_presets->preset(*slot->presetID())))
        return;
    m_presets->setActivePresetID(slot->presetID());
    m_engine->pushSoon();
}

QList<FanReason> AppState::fanReasons() const {
    const auto& sample = m_telemetry->latest();
    if (!sample)
        return {};
    QList<FanReason> reasons;
    for (std::size_t fan = 0; fan < sample->fans.size(); ++fan)
        reasons.append(FanReason::of(m_control.facts(), m_engine->answeredDemand(),
                                     m_engine->effectiveTargets(), *sample, fan));
    return reasons;
}

void AppState::setOpenMainWindow(OpenMainWindow openMainWindow) {
    m_openMainWindow = std::move(openMainWindow);
    Q_EMIT openMainWindowChanged();
}

void AppState::activateSessionPreset(const QString& name) {
    if (name == "Automatic"_L1) {
        m_presets->activateForSessionOnly(std::nullopt);
        m_engine->pushSoon();
        return;
    }
    const auto& presets = m_presets->presets();
    const auto named = std::ranges::find(presets, name, &FanPreset::name);
    if (named == presets.end())
        return;
    m_presets->activateForSessionOnly(named->id);
    m_engine->pushSoon();
}

} // namespace kestrowind
