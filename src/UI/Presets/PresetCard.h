#pragma once

#include "Core/PresetSlot.h"
#include "UI/DesignSystem/RowListModel.h"
#include "UI/Presets/ThumbnailCurve.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// One slot as the presets screen shows it.
struct PresetCard {
    Q_GADGET
    Q_PROPERTY(QString slotID READ slotID CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString caption MEMBER caption CONSTANT FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName CONSTANT FINAL)
    Q_PROPERTY(QString help MEMBER help CONSTANT FINAL)
    Q_PROPERTY(kestrowind::ThumbnailCurve curve MEMBER curve CONSTANT FINAL)
    Q_PROPERTY(bool isAutomatic READ isAutomatic CONSTANT FINAL)
    Q_PROPERTY(bool isActive MEMBER isActive CONSTANT FINAL)
    Q_PROPERTY(bool isEditable MEMBER isEditable CONSTANT FINAL)
    QML_VALUE_TYPE(presetCard)

public:
    PresetSlot slot = PresetSlot::automatic();
    QString name; ///< on one line
    QString caption;
    QString symbolName;
    QString help;         ///< what more there is to say; empty for nothing
    ThumbnailCurve curve; ///< of the first fan; nothing for the automatic slot
    bool isActive = false;
    bool isEditable = false; ///< it can be renamed and deleted

    [[nodiscard]] QString slotID() const { return slot.id(); }
    [[nodiscard]] bool isAutomatic() const { return slot.isAutomatic(); }
    bool operator==(const PresetCard&) const = default;
};

using PresetCards = RowListModel<PresetCard, &PresetCard::slot>;

} // namespace kestrowind
