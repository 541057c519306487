#pragma once

#include "Core/FanPreset.h"

#include <QString>

#include <optional>

namespace kestrowind::PresetCaption {

/// One localised line that describes a preset; none stands for automatic.
[[nodiscard]] QString text(const std::optional<FanPreset>& preset);

} // namespace kestrowind::PresetCaption
