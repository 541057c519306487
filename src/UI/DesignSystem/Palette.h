#pragma once

#include "Platform/SystemAppearance.h"

#include <QColor>
#include <QGradient>

#include <optional>

/// Every colour of the interface as a pure function of the colour scheme.
namespace kestrowind::Palette {

enum class Role {
    windowBackground,
    cardFill, ///< translucent, over windowBackground
    popupBackground,
    panelBackground, ///< dark enough for the temperatures' colours to be read on it
    separator,
    primaryText,
    secondaryText,
    tertiaryText,
    quaternaryFill, ///< muted tracks and outlines
    accent,         ///< readable as text and as a mark
    accentFill,     ///< under onAccent
    onAccent,       ///< on an accentFill: white, or black where that alone is readable
    controlFill,    ///< a resting control, over a card
    controlBorder,
    hoverFill,
    pressedFill,
    selectedSegment,
    focusRing,
    track,
    knob,
    warning,
    danger,
    dangerFill, ///< under onDanger
    onDanger,
    success,
    shadow,
    scrim,     ///< over what a dialog leaves out of reach
    fieldFill, ///< where text is typed, over a popup
    popupBorder,
};

/// `accent` is the user's, which the roles of that name follow; without one they are blue.
[[nodiscard]] QColor color(Role role, ColorScheme scheme, const std::optional<QColor>& accent = {});

/// Air: cyan to blue, the same in both schemes.
[[nodiscard]] QGradientStops fanGradientStops();
[[nodiscard]] QColor cpuSeries();
[[nodiscard]] QColor gpuSeries();

/// Cool cyan at 40 degrees Celsius and below, hot red at 95 and above; darker and fuller in the
/// light scheme, where it stands on white.
[[nodiscard]] QColor temperatureColor(double celsius, ColorScheme scheme);

/// The inner border of a card from top to bottom: lit above, shaded below.
[[nodiscard]] QGradientStops cardBorderStops();

/// How well one opaque colour is read on another: 1 to 21 (WCAG 2).
[[nodiscard]] double contrast(const QColor& first, const QColor& second);

/// What is seen of a translucent colour over an opaque one.
[[nodiscard]] QColor composited(const QColor& above, const QColor& below);

} // namespace kestrowind::Palette
