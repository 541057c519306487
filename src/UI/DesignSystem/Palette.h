#pragma once

#include "Platform/SystemAppearance.h"

#include <QColor>
#include <QGradient>

/// Every colour of the interface as a pure function of the colour scheme.
namespace kestrowind::Palette {

enum class Role {
    windowBackground,
    cardFill, ///< translucent, over windowBackground
    popupBackground,
    separator,
    primaryText,
    secondaryText,
    tertiaryText,
    quaternaryFill, ///< muted tracks and outlines
    accent,         ///< readable as text and as a mark
    accentFill,     ///< under onAccent
    onAccent,
    controlFill, ///< a resting control, over a card
    controlBorder,
    hoverFill,
    pressedFill,
    selectedSegment,
    focusRing,
    track,
    knob,
    warning,
    danger,
    dangerFill, ///< under onAccent
    success,
    shadow,
    scrim,     ///< over what a dialog leaves out of reach
    fieldFill, ///< where text is typed, over a popup
    popupBorder,
};

[[nodiscard]] QColor color(Role role, ColorScheme scheme);

/// Air: cyan to blue, the same in both schemes.
[[nodiscard]] QGradientStops fanGradientStops();
[[nodiscard]] QColor cpuSeries();
[[nodiscard]] QColor gpuSeries();

/// Cool cyan at 40 degrees Celsius and below, hot red at 95 and above; darker and fuller in the
/// light scheme, where it stands on white.
[[nodiscard]] QColor temperatureColor(double celsius, ColorScheme scheme);

/// The inner border of a card from top to bottom: lit above, shaded below.
[[nodiscard]] QGradientStops cardBorderStops();

/// What is seen of a translucent colour over an opaque one.
[[nodiscard]] QColor composited(const QColor& above, const QColor& below);

} // namespace kestrowind::Palette
