#pragma once

#include "Platform/SystemAppearance.h"

#include <QColor>
#include <QGradient>

#include <optional>

/// Every colour of the interface as a pure function of the colour scheme.
namespace kestrowind::Palette {

struct Colors {
    QColor windowBackground;
    QColor cardFill; ///< translucent, over windowBackground
    QColor popupBackground;
    QColor panelBackground; ///< dark enough for the temperatures' colours to be read on it
    QColor separator;
    QColor primaryText;
    QColor secondaryText;
    QColor tertiaryText;
    QColor quaternaryFill; ///< muted tracks and outlines
    QColor accent;         ///< readable as text and as a mark
    QColor accentFill;     ///< under onAccent
    QColor onAccent;       ///< on an accentFill: white, or black where that alone is readable
    QColor controlFill;    ///< a resting control, over a card
    QColor controlBorder;
    QColor hoverFill;
    QColor pressedFill;
    QColor selectedSegment;
    QColor focusRing;
    QColor track;
    QColor knob;
    QColor warning;
    QColor danger;
    QColor dangerFill; ///< under onDanger
    QColor onDanger;
    QColor success;
    QColor shadow;
    QColor scrim;     ///< over what a dialog leaves out of reach
    QColor fieldFill; ///< where text is typed, over a popup
    QColor popupBorder;

    bool operator==(const Colors&) const = default;
};

[[nodiscard]] const Colors& colors(ColorScheme scheme);
/// With the user's accent, which the colours of that name and the focus ring follow; without one
/// they are blue.
[[nodiscard]] Colors colors(ColorScheme scheme, const std::optional<QColor>& accent);

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

/// The colour with a part of its opacity, 0 to 1.
[[nodiscard]] QColor faded(QColor color, double part);

/// What is seen of a translucent colour over an opaque one.
[[nodiscard]] QColor composited(const QColor& above, const QColor& below);

} // namespace kestrowind::Palette
