#include "UI/MainWindow/CaptionModel.h"

#include "Core/AppState.h"
#include "Core/AssignIfChanged.h"
#include "Core/PresetCaption.h"
#include "Core/PresetControlState.h"

namespace kestrowind {
namespace {

using MessageTone::Tone;

Tone toneOf(PresetControlStatus::Tint tint) {
    switch (tint) {
    case PresetControlStatus::Tint::accent:
        return Tone::Accent;
    case PresetControlStatus::Tint::warning:
        return Tone::Warning;
    case PresetControlStatus::Tint::neutral:
        return Tone::Neutral;
    }
    Q_UNREACHABLE();
}

CaptionModel::Line currentLine(const AppState& appState) {
    const PresetControlState state = ActivePresetState::current(appState);
    if (!state.status)
        return {.text = PresetCaption::text(appState.presets().activePreset())};
    return {
        .text = state.status->text.string(),
        .symbolName = state.status->symbolName,
        .tone = toneOf(state.status->tint),
        .isInProgress = state.status->isInProgress,
    };
}

} // namespace

CaptionModel::CaptionModel(AppState& appState, QObject* parent)
    : QObject(parent)
    , m_appState(appState)
    , m_line(currentLine(appState)) {
    const PresetStore& presets = appState.presets();
    connect(&presets, &PresetStore::presetsChanged, this, &CaptionModel::update);
    connect(&presets, &PresetStore::activePresetIDChanged, this, &CaptionModel::update);
    connect(&appState.control(), &ControlState::changed, this, &CaptionModel::update);
}

void CaptionModel::update() {
    if (assignIfChanged(m_line, currentLine(m_appState)))
        Q_EMIT lineChanged();
}

} // namespace kestrowind
