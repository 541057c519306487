#include "Core/PresetSlot.h"
#include "Fuzz/Require.h"

#include <cstdint>

using namespace kestrowind;

/// Text that was dropped onto a card, or stands in the settings.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto slot = PresetSlot::fromId(text);
    if (!slot)
        return 0;
    KESTROWIND_REQUIRE(slot->isAutomatic() || !slot->presetID()->isNull() ||
                       text.contains(QLatin1Char('0')));
    KESTROWIND_REQUIRE(PresetSlot::fromId(slot->id()) == slot);
    KESTROWIND_REQUIRE(slot->id().compare(text, Qt::CaseInsensitive) == 0);
    return 0;
}
