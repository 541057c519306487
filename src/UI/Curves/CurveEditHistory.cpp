#include "UI/Curves/CurveEditHistory.h"

#include <algorithm>

namespace kestrowind {

void CurveEditHistory::record(const QUuid& preset, const Curves& before, const Curves& after) {
    if (before == after)
        return;
    Timeline& line = m_timelines[preset];
    if (!timeline(preset, before))
        line = {.states = {before}, .now = 0};
    line.states.resize(line.now + 1);
    line.states.append(after);
    if (line.states.size() > longest + 1)
        line.states.removeFirst();
    line.now = line.states.size() - 1;
}

bool CurveEditHistory::canUndo(const QUuid& preset, const Curves& current) const {
    return canStep(preset, current, -1);
}

bool CurveEditHistory::canRedo(const QUuid& preset, const Curves& current) const {
    return canStep(preset, current, +1);
}

std::optional<CurveEditHistory::Curves> CurveEditHistory::undo(const QUuid& preset,
                                                               const Curves& current) {
    return step(preset, current, -1);
}

std::optional<CurveEditHistory::Curves> CurveEditHistory::redo(const QUuid& preset,
                                                               const Curves& current) {
    return step(preset, current, +1);
}

void CurveEditHistory::keepOnly(const QList<FanPreset>& presets) {
    m_timelines.removeIf([&](const auto& line) {
        return std::ranges::find(presets, line.key(), &FanPreset::id) == presets.end();
    });
}

const CurveEditHistory::Timeline* CurveEditHistory::timeline(const QUuid& preset,
                                                             const Curves& current) const {
    const auto found = m_timelines.constFind(preset);
    if (found == m_timelines.constEnd() || found->states.value(found->now) != current)
        return nullptr;
    return &*found;
}

bool CurveEditHistory::canStep(const QUuid& preset, const Curves& current, qsizetype by) const {
    const Timeline* line = timeline(preset, current);
    return line && line->now + by >= 0 && line->now + by < line->states.size();
}

std::optional<CurveEditHistory::Curves>
CurveEditHistory::step(const QUuid& preset, const Curves& current, qsizetype by) {
    if (!canStep(preset, current, by))
        return std::nullopt;
    Timeline& line = m_timelines[preset];
    line.now += by;
    return line.states[line.now];
}

} // namespace kestrowind
