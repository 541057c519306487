#pragma once

#include "Core/FanPreset.h"

#include <QHash>
#include <QList>
#include <QUuid>

#include <optional>

namespace kestrowind {

/// What the curves of each preset have been since the application was started, for undo and redo.
/// Nothing of it is stored. A preset whose curves were changed by somebody else has no history.
class CurveEditHistory {
public:
    using Curves = QList<FanCurve>;

    /// Older edits than this many are forgotten.
    static constexpr qsizetype longest = 200;

    /// An edit; what had been undone can no longer be redone. Equal curves are no edit.
    void record(const QUuid& preset, const Curves& before, const Curves& after);

    [[nodiscard]] bool canUndo(const QUuid& preset, const Curves& current) const;
    [[nodiscard]] bool canRedo(const QUuid& preset, const Curves& current) const;
    /// The curves before the last edit, which is undone thereby; absent when there is none.
    [[nodiscard]] std::optional<Curves> undo(const QUuid& preset, const Curves& current);
    [[nodiscard]] std::optional<Curves> redo(const QUuid& preset, const Curves& current);

    /// Forgets the history of all other presets.
    void keepOnly(const QList<FanPreset>& presets);

private:
    struct Timeline {
        QList<Curves> states;
        qsizetype now = 0; ///< index of the current one
    };

    /// Null when the current curves are not what the history left.
    [[nodiscard]] const Timeline* timeline(const QUuid& preset, const Curves& current) const;
    [[nodiscard]] bool canStep(const QUuid& preset, const Curves& current, qsizetype by) const;
    std::optional<Curves> step(const QUuid& preset, const Curves& current, qsizetype by);

    QHash<QUuid, Timeline> m_timelines;
};

} // namespace kestrowind
