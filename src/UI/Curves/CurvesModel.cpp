#include "UI/Curves/CurvesModel.h"

#include "Core/AppState.h"
#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "UI/Curves/CurveEditHistory.h"

#include <QKeySequence>

#include <algorithm>
#include <utility>

namespace kestrowind {
namespace {

FanCurve displayedCurve(const FanPreset& preset) {
    return preset.curves.value(0);
}

QString withKeys(const char* key, const QKeySequence& keys) {
    return localized(key).arg(keys.toString(QKeySequence::NativeText));
}

} // namespace

CurvesModel::CurvesModel(AppState& appState, CurveEditHistory& history,
                         std::chrono::milliseconds pause)
    : m_appState(appState)
    , m_history(history) {
    const PresetStore& presets = appState.presets();
    connect(&presets, &PresetStore::presetsChanged, this, &CurvesModel::refresh);
    connect(&presets, &PresetStore::activePresetIDChanged, this, &CurvesModel::refresh);
    appState.telemetry().onSample(this, [this](const TelemetrySample&) { refreshTelemetry(); });
    const ControlEngine& engine = appState.engine();
    const auto showBoost = [this, &engine] { m_chart.setBoostPercent(engine.quickBoostPercent()); };
    connect(&engine, &ControlEngine::quickBoostPercentChanged, this, showBoost);
    showBoost();
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &CurvesModel::refreshTelemetry);
    connect(&m_chart, &FanCurveChartModel::movePoint, this, &CurvesModel::movePoint);
    connect(&m_chart, &FanCurveChartModel::nudgePoint, this, &CurvesModel::nudgePoint);
    connect(&m_chart, &FanCurveChartModel::addPoint, this, &CurvesModel::addPoint);
    connect(&m_chart, &FanCurveChartModel::deletePointRequested, this, &CurvesModel::deletePoint);
    connect(&m_chart, &FanCurveChartModel::dragCancelled, this, &CurvesModel::forgetDraft);
    m_nudges.setSingleShot(true);
    m_nudges.setInterval(pause);
    connect(&m_nudges, &QTimer::timeout, this, &CurvesModel::storeNudges);

    if (const auto selected = selectedPreset())
        m_selectedPresetID = selected->id;
    refresh();
    refreshTelemetry();
}

CurvesModel::~CurvesModel() {
    storeNudges();
}

// --- the preset that is shown -------------------------------------------------------------------

std::optional<FanPreset> CurvesModel::selectedPreset() const {
    const PresetStore& store = m_appState.presets();
    if (m_selectedPresetID) {
        if (auto selected = store.preset(*m_selectedPresetID))
            return selected;
    }
    if (auto active = store.activePreset())
        return active;
    const QList<FanPreset>& presets = store.presets();
    const auto user = std::ranges::find(presets, false, &FanPreset::isBuiltIn);
    if (user != presets.end())
        return *user;
    return presets.isEmpty() ? std::nullopt : std::optional(presets.first());
}

void CurvesModel::setSelectedPresetID(const std::optional<QUuid>& id) {
    storeNudges();
    if (assignIfChanged(m_selectedPresetID, id))
        forgetDraft();
}

std::optional<FanPreset> CurvesModel::shownPreset() const {
    return m_draftPreset ? m_draftPreset : selectedPreset();
}

QString CurvesModel::builtInNote() const {
    return isBuiltIn() ? localized("curves.builtInNote").arg(presetName()) : QString();
}

QString CurvesModel::chartHelp() const {
    return localized(isBuiltIn() ? "curves.chart.readOnlyHelp" : "curves.chart.editableHelp");
}

bool CurvesModel::canAddPreset() const {
    return m_appState.presets().canAddPreset();
}

QString CurvesModel::customizeHelp() const {
    return canAddPreset()
               ? QString()
               : localized("presets.limitReachedHelp").arg(PresetStore::maximumUserPresets);
}

void CurvesModel::select(const QString& slotID) {
    const auto slot = PresetSlot::fromId(slotID);
    if (slot && !slot->isAutomatic())
        setSelectedPresetID(slot->presetID());
}

void CurvesModel::createPreset() {
    if (!canAddPreset())
        return;
    if (const auto added = m_appState.presets().addPreset(newPresetName()))
        setSelectedPresetID(added->id);
}

void CurvesModel::duplicateForEditing() {
    if (!isBuiltIn())
        return;
    if (const auto copy = m_appState.presets().duplicate(shown()))
        setSelectedPresetID(copy->id);
}

QString CurvesModel::newPresetName() const {
    const QList<FanPreset>& presets = m_appState.presets().presets();
    QString name = localized("curves.newPresetName.base");
    for (int number = 2; std::ranges::find(presets, name, &FanPreset::name) != presets.end();
         ++number)
        name = localized("curves.newPresetName.numbered").arg(number);
    return name;
}

// --- edits --------------------------------------------------------------------------------------

qsizetype CurvesModel::fanCount() const {
    const auto& latest = m_appState.telemetry().latest();
    return latest && !latest->fans.empty() ? static_cast<qsizetype>(latest->fans.size()) : 1;
}

std::optional<FanPreset> CurvesModel::edited(const std::function<void(FanCurve&)>& edit) const {
    auto preset = shownPreset();
    if (!preset || preset->isBuiltIn)
        return std::nullopt;
    FanCurve curve = displayedCurve(*preset);
    edit(curve);
    preset->curves = QList<FanCurve>(fanCount(), curve);
    return preset;
}

void CurvesModel::movePoint(int index, const FanCurvePoint& to, bool isFinal) {
    storeNudges();
    const auto moved = edited([&](FanCurve& curve) { curve.move(index, to); });
    if (moved && isFinal)
        commit(*moved);
    else if (moved)
        setDraft(moved);
}

void CurvesModel::nudgePoint(int index, const FanCurvePoint& to) {
    if (index != m_nudgedPoint)
        storeNudges();
    const auto nudged = edited([&](FanCurve& curve) { curve.move(index, to); });
    if (!nudged || nudged->curves == shown().curves)
        return;
    m_nudgedPoint = index;
    m_nudges.start();
    setDraft(nudged);
}

void CurvesModel::storeNudges() {
    m_nudges.stop();
    if (std::exchange(m_nudgedPoint, -1) >= 0 && m_draftPreset)
        commit(FanPreset(*m_draftPreset));
}

void CurvesModel::addPoint(const FanCurvePoint& point) {
    storeNudges();
    if (!displayedCurve(shown()).hasRoomAt(point.tempC))
        return;
    if (const auto grown = edited([&](FanCurve& curve) { curve.insert(point); }))
        commit(*grown);
}

void CurvesModel::deletePoint(int index) {
    storeNudges();
    const auto count = displayedCurve(shown()).points().size();
    if (count <= 1 || index < 0 || index >= count)
        return;
    if (const auto shrunk = edited([&](FanCurve& curve) { curve.remove(index); }))
        commit(*shrunk);
}

void CurvesModel::commit(const FanPreset& edited) {
    auto preset = m_appState.presets().preset(edited.id);
    if (!preset)
        return;
    m_history.record(edited.id, preset->curves, edited.curves);
    // What else of it was changed meanwhile stays.
    preset->curves = edited.curves;
    storeAndPush(*preset);
}

void CurvesModel::storeAndPush(const FanPreset& preset) {
    // Until the store has it, so that the old curve does not show in between.
    m_draftPreset = preset;
    m_appState.presets().update(preset);
    m_draftPreset.reset();
    refresh();
    m_appState.engine().pushSoon();
}

void CurvesModel::setDraft(const std::optional<FanPreset>& draft) {
    m_draftPreset = draft;
    refresh();
}

void CurvesModel::forgetDraft() {
    setDraft(std::nullopt);
}

bool CurvesModel::canUndo() const {
    if (m_nudgedPoint >= 0)
        return true;
    return !m_draftPreset && m_history.canUndo(shown().id, shown().curves);
}

bool CurvesModel::canRedo() const {
    return !m_draftPreset && m_history.canRedo(shown().id, shown().curves);
}

QString CurvesModel::undoHelp() {
    return withKeys("curves.undoHelp", Qt::CTRL | Qt::Key_Z);
}

QString CurvesModel::redoHelp() {
    return withKeys("curves.redoHelp", Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
}

void CurvesModel::undo() {
    storeNudges();
    if (!canUndo())
        return;
    FanPreset preset = shown();
    preset.curves = *m_history.undo(preset.id, preset.curves);
    storeAndPush(preset);
}

void CurvesModel::redo() {
    if (!canRedo())
        return;
    FanPreset preset = shown();
    preset.curves = *m_history.redo(preset.id, preset.curves);
    storeAndPush(preset);
}

// --- what is seen -------------------------------------------------------------------------------

void CurvesModel::setView(QQuickItem* view) {
    m_visibility.watch(view);
    refreshTelemetry();
}

void CurvesModel::refresh() {
    // A draft of what is gone is no use to anybody.
    if (m_draftPreset && !m_appState.presets().preset(m_draftPreset->id)) {
        m_draftPreset.reset();
        m_nudgedPoint = -1;
    }
    const auto preset = shownPreset();
    if (assignIfChanged(m_chartedPresetID, preset ? preset->id : QUuid()))
        m_chart.startOver();
    refreshChoices();
    m_chart.setIsEditable(preset && !preset->isBuiltIn);
    m_chart.setCurve(preset ? displayedCurve(*preset) : FanCurve());
    m_history.keepOnly(m_appState.presets().presets());
    Q_EMIT presetChanged();
}

void CurvesModel::refreshChoices() {
    const auto selected = selectedPreset();
    QList<Choice> user;
    QList<Choice> builtIn;
    for (const FanPreset& preset : m_appState.presets().presets()) {
        (preset.isBuiltIn ? builtIn : user)
            .append({.identifier = PresetSlot::preset(preset.id).id(),
                     .title = oneLine(preset.name),
                     .symbolName = preset.symbolName,
                     .isChosen = selected && preset.id == selected->id});
    }
    m_userPresets.setRows(user);
    m_builtInPresets.setRows(builtIn);
}

void CurvesModel::refreshTelemetry() {
    if (m_visibility.item() && !m_visibility.isSeen())
        return;
    const TelemetryStore& telemetry = m_appState.telemetry();
    m_chart.setLiveTemperature(telemetry.systemTemperature());
    const auto& latest = telemetry.latest();
    m_chart.setFanReading(latest && !latest->fans.empty() ? std::optional(latest->fans.front())
                                                          : std::nullopt);
}

} // namespace kestrowind
