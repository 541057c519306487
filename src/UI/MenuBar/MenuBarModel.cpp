#include "UI/MenuBar/MenuBarModel.h"

#include "Core/AppState.h"
#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "Core/OneLine.h"
#include "Core/WholeNumberText.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

using namespace Qt::StringLiterals;

MenuBarModel::MenuBarModel(AppState& appState, QObject* parent)
    : QObject(parent)
    , m_appState(appState) {
    m_boostRest.setSingleShot(true);
    m_boostRest.setInterval(boostRest);
    connect(&m_boostRest, &QTimer::timeout, this, &MenuBarModel::refreshHelper);
}

MenuBarModel::~MenuBarModel() = default;

void MenuBarModel::setIsFollowing(bool isFollowing) {
    if (isFollowing == (m_following != nullptr))
        return;
    if (!isFollowing) {
        m_following.reset();
        setIsBoostDragged(false);
        m_boostRest.stop();
        return;
    }
    m_following = std::make_unique<QObject>();
    QObject* context = m_following.get();
    m_appState.telemetry().onSample(context, [this](const TelemetrySample&) { refreshReadings(); });
    connect(&m_appState.presets(), &PresetStore::presetsChanged, context,
            [this] { refreshPresets(); });
    connect(&m_appState.presets(), &PresetStore::activePresetIDChanged, context,
            [this] { refreshPresets(); });
    connect(&m_appState.control(), &ControlState::changed, context, [this] { refreshHelper(); });
    connect(&m_appState.engine(), &ControlEngine::quickBoostPercentChanged, context,
            [this] { refreshBoost(); });
    refreshReadings();
    refreshPresets();
    refreshHelper();
    refreshBoost();
}

void MenuBarModel::refreshReadings() {
    Readings readings;
    QList<MenuBarFan> fans;
    if (const auto& sample = m_appState.telemetry().latest()) {
        readings = {.isWaiting = false,
                    .cpu = MenuBarTemperature::cpu(sample->temperatures.cpuMax),
                    .gpu = MenuBarTemperature::gpu(sample->temperatures.gpuMax)};
        const QList<FanReason> reasons = m_appState.fanReasons();
        for (const SMCFanReading& fan : sample->fans)
            fans.append(MenuBarFan::of(fan, reasons.at(fans.size()), reasons.size()));
    }
    m_fans.setRows(fans);
    if (assignIfChanged(m_readings, readings))
        Q_EMIT readingsChanged();
}

void MenuBarModel::refreshPresets() {
    const PresetStore& store = m_appState.presets();
    QList<Choice> rows{{.identifier = PresetSlot::automatic().id(),
                        .title = localized("shared.mode.automatic"),
                        .symbolName = u"gearshape"_s,
                        .isChosen = !store.activePresetID()}};
    for (const FanPreset& preset : store.presets())
        rows.append({.identifier = PresetSlot::preset(preset.id).id(),
                     .title = oneLine(preset.name),
                     .symbolName = preset.symbolName,
                     .isChosen = store.activePresetID() == preset.id});
    m_presets.setRows(rows);
    if (assignIfChanged(m_activePresetIndex, m_presets.find(true, &Choice::isChosen)))
        Q_EMIT activePresetIndexChanged();
}

void MenuBarModel::refreshHelper() {
    const ControlState::Facts& control = m_appState.control().facts();
    const Helper helper{.isInstalled = !control.isHelperMissing(),
                        .isTakingControl = control.isTakingControl() && !m_isBoostDragged &&
                                           !m_boostRest.isActive(),
                        .isControlUnavailable = control.hasFailed()};
    if (assignIfChanged(m_helper, helper))
        Q_EMIT helperChanged();
}

void MenuBarModel::refreshBoost() {
    if (!m_isBoostDragged &&
        assignIfChanged(m_boostPercent, m_appState.engine().quickBoostPercent()))
        Q_EMIT boostChanged();
}

QString MenuBarModel::boostText() const {
    return localized("menuBar.boost.percent").arg(WholeNumberText::truncated(m_boostPercent));
}

void MenuBarModel::setIsBoostDragged(bool isBoostDragged) {
    if (!assignIfChanged(m_isBoostDragged, isBoostDragged))
        return;
    Q_EMIT isBoostDraggedChanged();
    m_boostRest.start();
    refreshBoost();
}

void MenuBarModel::activate(const QString& slotID) {
    m_appState.activate(slotID);
}

void MenuBarModel::setBoost(double percent) {
    m_boostRest.start();
    const double snapped = std::clamp(std::round(percent / boostStep()) * boostStep(), 0.0, 100.0);
    if (assignIfChanged(m_boostPercent, snapped))
        Q_EMIT boostChanged();
    // Every assignment asks the helper for something: not for each pixel of a movement.
    if (m_appState.engine().quickBoostPercent() != snapped)
        m_appState.engine().setQuickBoostPercent(snapped);
}

void MenuBarModel::openMainWindow() {
    dismiss();
    // A copy: what opens the window may be replaced while it runs.
    if (const auto open = m_appState.openMainWindow())
        open();
}

} // namespace kestrowind
