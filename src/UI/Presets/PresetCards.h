#pragma once

#include "Core/PresetSlot.h"
#include "UI/Presets/ThumbnailCurve.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// One slot as the presets screen shows it.
struct PresetCard {
    PresetSlot slot;
    QString name; ///< on one line
    QString caption;
    QString symbolName;
    QString help;         ///< what more there is to say; empty for nothing
    ThumbnailCurve curve; ///< of the first fan; nothing for the automatic slot
    bool isActive = false;
    bool isEditable = false; ///< it can be renamed and deleted

    bool operator==(const PresetCard&) const = default;
};

/// The cards in the user's order. A card keeps its row's item when others come, go and change
/// places.
class PresetCards : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to PresetsModel")

public:
    enum Role {
        SlotIDRole = Qt::UserRole,
        NameRole,
        CaptionRole,
        SymbolNameRole,
        HelpRole,
        CurveRole,
        IsAutomaticRole,
        IsActiveRole,
        IsEditableRole,
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const QList<PresetCard>& cards() const { return m_cards; }
    /// A slot may occur more than once.
    void setCards(const QList<PresetCard>& cards);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void removeRow(int row);
    void place(int row, const PresetCard& card);

    QList<PresetCard> m_cards;
};

} // namespace kestrowind
