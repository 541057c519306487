#pragma once

#include "Core/FanPreset.h"
#include "Core/PresetSlot.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>

namespace kestrowind {

class UserDefaults;

/// The single owner of the presets, the active one, and the order of their slots. Belongs to the
/// main thread; every change is on disk when the call returns.
///
/// User presets are kept in "presets.json", the active one and the order in the user defaults.
/// Failures to read or write are silent to the user and logged, a change that is not kept as a
/// warning. A file that cannot be decoded, is larger than largestPresetsFile, or has more presets
/// or points than can be shown, gives no user presets and is left alone; before the first save
/// would replace it, it is moved aside to "presets.json.unreadable", so that no curve is ever lost.
class PresetStore final : public QObject {
    Q_OBJECT

public:
    static constexpr int maximumUserPresets = 3;

    /// Where the presets are kept and what is remembered about them.
    struct Storage {
        QString folder; ///< made by the first save
        /// False for a store on a folder of its own, as tests and previews have it.
        bool persistsSlotOrder = true;
    };

    PresetStore(int fanCount, UserDefaults& userDefaults, const Storage& storage);
    ~PresetStore() override;

    /// Built-ins first, then user presets in the order of their creation.
    [[nodiscard]] const QList<FanPreset>& presets() const { return m_presets; }
    [[nodiscard]] const QList<PresetSlot>& slotOrder() const { return m_slotOrder; }
    [[nodiscard]] const std::optional<QUuid>& activePresetID() const { return m_activePresetID; }
    /// Absent for automatic, and for an identifier that names no preset.
    [[nodiscard]] std::optional<FanPreset> activePreset() const;
    [[nodiscard]] std::optional<FanPreset> preset(const QUuid& id) const;
    [[nodiscard]] bool canAddPreset() const;
    [[nodiscard]] int fanCount() const { return m_fanCount; }

    /// Activates a preset, or automatic. The caller asks the control engine for a push.
    void setActivePresetID(const std::optional<QUuid>& id);
    /// The same for this run only: the next start has the choice that was saved before.
    void activateForSessionOnly(const std::optional<QUuid>& id);

    /// Absent when there are as many user presets as there may be.
    std::optional<FanPreset> addPreset(const QString& name);
    std::optional<FanPreset> duplicate(const FanPreset& preset);
    /// Takes in a preset that was made elsewhere, named as a duplicate would be while its name is
    /// taken.
    std::optional<FanPreset> adopt(FanPreset preset);
    /// Replaces the stored preset of the same identifier; ignored for built-ins and unknown ones.
    void update(const FanPreset& preset);
    /// Ignored for built-ins. Deleting the active preset makes automatic active.
    void remove(const FanPreset& preset);
    void moveSlot(const PresetSlot& slot, const PresetSlot& onto);

    /// The saved order without what no longer exists, then what it lacks in canonical order:
    /// automatic, then the presets.
    [[nodiscard]] static QList<PresetSlot> reconciledSlotOrder(const QList<FanPreset>& presets,
                                                               const QList<PresetSlot>& savedOrder);
    /// The order after a slot was dropped onto another, whose place it takes.
    [[nodiscard]] static QList<PresetSlot>
    slotOrder(QList<PresetSlot> order, const PresetSlot& moving, const PresetSlot& onto);

Q_SIGNALS:
    void presetsChanged();
    void activePresetIDChanged();
    void slotOrderChanged();

private:
    [[nodiscard]] QList<FanPreset> loadUserPresets();
    [[nodiscard]] QList<PresetSlot> savedSlotOrder() const;
    void restoreActivePreset();
    /// As one of the user's own, with an identifier of its own.
    std::optional<FanPreset> append(FanPreset preset);
    void reconcileSlots();
    void save();
    void persistSlotOrder();
    [[nodiscard]] QList<FanPreset> userPresets() const;

    UserDefaults& m_userDefaults;
    QList<FanPreset> m_presets;
    std::optional<QUuid> m_activePresetID;
    QList<PresetSlot> m_slotOrder;
    bool m_persistsActiveSelection = true;
    bool m_persistsSlotOrder;
    int m_fanCount;
    QString m_filePath;
    /// There is something at the path that is not ours to replace.
    bool m_hasUnreadableFile = false;
};

} // namespace kestrowind
