#include "Core/PresetCaption.h"

#include "Core/LocalizedText.h"

namespace kestrowind {

QString PresetCaption::text(const std::optional<FanPreset>& preset) {
    if (!preset)
        return localized("presets.card.automaticCaption");
    if (!preset->isBuiltIn)
        return localized("presets.card.customCurveCaption");
    if (preset->id == FanPreset::coolID)
        return localized("presets.card.coolCaption");
    if (preset->id == FanPreset::fullSpeedID)
        return localized("presets.card.fullSpeedCaption");
    return localized("presets.card.builtInCurveCaption");
}

} // namespace kestrowind
