#include "Core/PresetSlot.h"

#include "Core/CanonicalUuid.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

std::optional<PresetSlot> PresetSlot::fromId(const QString& id) {
    if (id == "automatic"_L1)
        return automatic();
    if (const auto uuid = parseUuid(id))
        return preset(*uuid);
    return std::nullopt;
}

QString PresetSlot::id() const {
    return m_presetID ? uuidText(*m_presetID) : u"automatic"_s;
}

} // namespace kestrowind
