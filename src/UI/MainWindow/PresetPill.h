#pragma once

#include "Core/FanPreset.h"
#include "Core/PresetSlot.h"
#include "UI/DesignSystem/Choice.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace kestrowind {

/// One slot as the preset bar shows it.
struct PresetPill {
    Q_GADGET
    Q_PROPERTY(QString slotID READ slotID CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString fullName MEMBER fullName CONSTANT FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName CONSTANT FINAL)
    Q_PROPERTY(bool isActive MEMBER isActive CONSTANT FINAL)
    Q_PROPERTY(double width MEMBER width CONSTANT FINAL)
    QML_VALUE_TYPE(presetPill)

public:
    PresetSlot slot = PresetSlot::automatic();
    QString title; ///< shortened so that a row of pills stays a row
    QString fullName;
    QString symbolName;
    bool isActive = false;
    double width = 0; ///< points; the same whether active or not, so that choosing moves nothing

    [[nodiscard]] QString slotID() const { return slot.id(); }
    bool operator==(const PresetPill&) const = default;
};

using PresetPillList = RowListModel<PresetPill, &PresetPill::slot>;

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
/// As a menu has them, which never shortens a name.
[[nodiscard]] QList<Choice> choices(const QList<PresetPill>& pills);

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
