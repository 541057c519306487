#pragma once

#include <QHashFunctions>
#include <QString>
#include <QUuid>

#include <optional>

namespace kestrowind {

/// One place in the row of choices: a preset's, or that of automatic control.
class PresetSlot {
public:
    [[nodiscard]] static PresetSlot automatic() { return PresetSlot(std::nullopt); }
    [[nodiscard]] static PresetSlot preset(const QUuid& presetID) { return PresetSlot(presetID); }
    /// Parses a text identifier; absent for anything but "automatic" and a UUID.
    [[nodiscard]] static std::optional<PresetSlot> fromId(const QString& id);

    /// "automatic", or the preset's UUID in upper case.
    [[nodiscard]] QString id() const;
    [[nodiscard]] bool isAutomatic() const { return !m_presetID; }
    /// Absent for automatic.
    [[nodiscard]] const std::optional<QUuid>& presetID() const { return m_presetID; }

    bool operator==(const PresetSlot&) const = default;

private:
    explicit PresetSlot(std::optional<QUuid> presetID)
        : m_presetID(presetID) {}

    std::optional<QUuid> m_presetID;
};

[[nodiscard]] inline size_t qHash(const PresetSlot& slot, size_t seed = 0) noexcept {
    return qHashMulti(seed, slot.isAutomatic(), slot.presetID().value_or(QUuid()));
}

} // namespace kestrowind
