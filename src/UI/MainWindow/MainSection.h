#pragma once

#include "UI/DesignSystem/Choice.h"

#include <QString>

#include <array>

namespace kestrowind {

/// The sections of the main window, in the order of the section picker.
enum class MainSection { dashboard, curves, presets, settings };

inline constexpr std::array mainSections = {MainSection::dashboard, MainSection::curves,
                                            MainSection::presets, MainSection::settings};

/// What the section picker shows; the identifier is the name that the launch
/// option "InitialSection" has.
[[nodiscard]] Choice sectionChoice(MainSection section);
/// The section of that name in any letter case; the dashboard for every other text.
[[nodiscard]] MainSection sectionNamed(const QString& name);

} // namespace kestrowind
