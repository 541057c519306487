#pragma once

#include "Core/FanPreset.h"
#include "Core/PresetSlot.h"

#include <QList>
#include <QString>

#include <optional>

namespace kestrowind {

/// One slot as the preset bar shows it.
struct PresetPill {
    PresetSlot slot;
    QString title; ///< shortened so that a row of pills stays a row
    QString fullName;
    QString symbolName;
    bool isActive = false;
    double width = 0; ///< points; the same whether active or not, so that choosing moves nothing

    bool operator==(const PresetPill&) const = default;
};

namespace PresetPills {

/// Between two pills of the row, points.
inline constexpr double spacing = 10;
/// The icon of the overflow menu and the room at its sides, points.
inline constexpr double overflowWidth = 18 + 2 * 10;

/// The name, or the beginning of a long one and an ellipsis; counted in characters as people
/// perceive them.
[[nodiscard]] QString shortenedTitle(const QString& name);
[[nodiscard]] QList<PresetPill> pills(const QList<PresetSlot>& slotOrder,
                                      const QList<FanPreset>& presets,
                                      const std::optional<QUuid>& activePresetID);

/// A row of the first pills, and the overflow menu if there are more.
struct Row {
    qsizetype count = 0;
    double width = 0;

    bool operator==(const Row&) const = default;
};

/// The longest candidate row that is no wider than what is available; else the shortest.
[[nodiscard]] Row fittingRow(const QList<double>& pillWidths, double availableWidth);

} // namespace PresetPills
} // namespace kestrowind
