#pragma once

#include "Core/FanPreset.h"
#include "UI/Presets/CardGrid.h"
#include "UI/Presets/PresetCard.h"
#include "UI/Presets/PresetExchange.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace kestrowind {

class AppState;

/// The presets screen: its cards, what can be done to them, and the two dialogs. Slots are named by
/// their text identifiers; what names none is ignored. Belongs to the main thread.
class PresetsModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::RowList* cards READ cards CONSTANT FINAL)
    Q_PROPERTY(kestrowind::PresetExchange* exchange READ exchange CONSTANT FINAL)
    Q_PROPERTY(bool canAddPreset READ canAddPreset NOTIFY canAddPresetChanged FINAL)
    Q_PROPERTY(QString limitHelp READ limitHelp NOTIFY canAddPresetChanged FINAL)
    Q_PROPERTY(int activeRow READ activeRow NOTIFY activeRowChanged FINAL)

    Q_PROPERTY(double availableWidth READ availableWidth WRITE setAvailableWidth NOTIFY
                   availableWidthChanged FINAL)
    Q_PROPERTY(int columns READ columns NOTIFY gridChanged FINAL)
    Q_PROPERTY(double columnWidth READ columnWidth NOTIFY gridChanged FINAL)
    Q_PROPERTY(double spacing READ spacing CONSTANT FINAL)

    Q_PROPERTY(bool isRenaming READ isRenaming NOTIFY renamingChanged FINAL)
    Q_PROPERTY(QString renameDraftName READ renameDraftName WRITE setRenameDraftName NOTIFY
                   renameDraftNameChanged FINAL)
    Q_PROPERTY(int longestName READ longestName CONSTANT FINAL)
    Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY deletingChanged FINAL)
    Q_PROPERTY(QString deletionTitle READ deletionTitle NOTIFY deletionTitleChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// Both must outlive the model.
    PresetsModel(AppState& appState, FileDialogs& fileDialogs, QObject* parent = nullptr);

    /// In the user's order.
    [[nodiscard]] PresetCards* cards() { return &m_cards; }
    [[nodiscard]] PresetExchange* exchange() { return &m_exchange; }
    [[nodiscard]] bool canAddPreset() const { return m_canAddPreset; }
    /// Why no preset can be added; empty while one can.
    [[nodiscard]] QString limitHelp() const;
    /// Of the active card; 0 when no card is.
    [[nodiscard]] int activeRow() const { return m_activeRow; }

    /// What the grid has, points.
    [[nodiscard]] double availableWidth() const { return m_availableWidth; }
    void setAvailableWidth(double width);
    [[nodiscard]] int columns() const { return m_grid.columns; }
    [[nodiscard]] double columnWidth() const { return m_grid.columnWidth; }
    [[nodiscard]] static double spacing() { return CardGrid::spacing; }

    Q_INVOKABLE void activate(const QString& slotID);
    Q_INVOKABLE void duplicate(const QString& slotID);
    /// Makes a preset, unless there are as many as may be, and opens the rename dialog for it.
    Q_INVOKABLE void createPreset();

    /// Puts the slot that a dropped text names in the place of another. False when the text names
    /// none: then the drop is to be refused.
    Q_INVOKABLE bool drop(const QString& text, const QString& ontoSlotID);
    /// Puts a card as many places further; nothing where there is no such place.
    Q_INVOKABLE void moveBy(int row, int places);

    /// Opens the rename dialog, for presets of the user's own only.
    Q_INVOKABLE void rename(const QString& slotID);
    [[nodiscard]] bool isRenaming() const { return m_presetBeingRenamed.has_value(); }
    [[nodiscard]] const QString& renameDraftName() const { return m_renameDraftName; }
    void setRenameDraftName(const QString& name);
    [[nodiscard]] static int longestName() { return FanPreset::longestName; }
    /// Takes the draft, without white space and line breaks at its ends, as the name unless nothing
    /// is left of it, and closes the dialog.
    Q_INVOKABLE void commitRename();
    Q_INVOKABLE void cancelRename();

    /// Opens the confirmation, for presets of the user's own only.
    Q_INVOKABLE void requestDeletion(const QString& slotID);
    [[nodiscard]] bool isDeleting() const { return m_presetPendingDeletion.has_value(); }
    [[nodiscard]] QString deletionTitle() const;
    Q_INVOKABLE void confirmDeletion();
    Q_INVOKABLE void cancelDeletion();

Q_SIGNALS:
    void canAddPresetChanged();
    void activeRowChanged();
    void availableWidthChanged();
    void gridChanged();
    void renamingChanged();
    void renameDraftNameChanged();
    /// Before deletingChanged, so that the dialog opens with its title.
    void deletionTitleChanged();
    void deletingChanged();
    /// A card that the user has just made.
    void cardCreated(int row);

private:
    void update();
    [[nodiscard]] QList<PresetCard> currentCards() const;
    [[nodiscard]] std::optional<FanPreset> presetOf(const QString& slotID) const;
    void tellCreated(const FanPreset& created);
    void setPendingDeletion(const std::optional<FanPreset>& preset);
    void beginRenaming(const FanPreset& preset);

    AppState& m_appState;
    PresetCards m_cards;
    PresetExchange m_exchange;
    bool m_canAddPreset;
    int m_activeRow = 0;
    double m_availableWidth = 0;
    CardGrid m_grid;
    std::optional<QUuid> m_presetBeingRenamed;
    QString m_renameDraftName;
    std::optional<FanPreset> m_presetPendingDeletion;
};

} // namespace kestrowind
