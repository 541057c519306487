#include "UI/DesignSystem/Palette.h"

#include <algorithm>
#include <cmath>

namespace kestrowind::Palette {
namespace {

QColor grey(double white, double opacity = 1.0) {
    const auto level = static_cast<float>(white);
    return QColor::fromRgbF(level, level, level, static_cast<float>(opacity));
}

QColor hsb(double hue, double saturation, double brightness) {
    return QColor::fromHsvF(static_cast<float>(hue), static_cast<float>(saturation),
                            static_cast<float>(brightness));
}

/// Of the light that a screen gives, 0 to 1.
double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// Readable as text (WCAG 2, level AA).
constexpr double leastContrast = 4.5;

QColor darkColor(Role role) {
    switch (role) {
    case Role::windowBackground:
        return QColor(0x1c, 0x1c, 0x1f);
    case Role::cardFill:
        return grey(1, 0.06);
    case Role::popupBackground:
        return QColor(0x2c, 0x2c, 0x30);
    case Role::panelBackground:
        return QColor(0x18, 0x18, 0x1b);
    case Role::separator:
        return grey(1, 0.10);
    case Role::primaryText:
        return grey(1, 0.92);
    case Role::secondaryText:
        return grey(1, 0.74);
    case Role::tertiaryText:
        return grey(0.68);
    case Role::quaternaryFill:
        return grey(1, 0.14);
    case Role::accent:
        return QColor(0x3d, 0x9b, 0xff);
    case Role::accentFill:
        return QColor(0x0a, 0x70, 0xe0);
    case Role::onAccent:
        return grey(1);
    case Role::controlFill:
        return grey(1, 0.11);
    case Role::controlBorder:
        return grey(1, 0.10);
    case Role::hoverFill:
        return grey(1, 0.07);
    case Role::pressedFill:
        return grey(1, 0.14);
    case Role::selectedSegment:
        return grey(1, 0.18);
    case Role::focusRing:
        return QColor(0x3d, 0x9b, 0xff, 0xb4);
    case Role::track:
        return grey(1, 0.14);
    case Role::knob:
        return grey(0.96);
    case Role::warning:
        return QColor(0xff, 0x9f, 0x0a);
    case Role::danger:
        return QColor(0xff, 0x69, 0x61);
    case Role::dangerFill:
        return QColor(0xd2, 0x2d, 0x32);
    case Role::onDanger:
        return grey(1);
    case Role::success:
        return QColor(0x30, 0xd1, 0x58);
    case Role::shadow:
        return grey(0, 0.5);
    case Role::scrim:
        return grey(0, 0.48);
    case Role::fieldFill:
        return grey(0, 0.28);
    case Role::popupBorder:
        return grey(1, 0.20);
    }
    Q_UNREACHABLE();
}

QColor lightColor(Role role) {
    switch (role) {
    case Role::windowBackground:
        return QColor(0xf2, 0xf2, 0xf5);
    case Role::cardFill:
        return grey(1, 0.78);
    case Role::popupBackground:
    case Role::panelBackground:
        return QColor(0xfb, 0xfb, 0xfd);
    case Role::separator:
        return grey(0, 0.10);
    case Role::primaryText:
        return grey(0, 0.87);
    case Role::secondaryText:
        return grey(0.38);
    case Role::tertiaryText:
        return grey(0.4);
    case Role::quaternaryFill:
        return grey(0, 0.10);
    case Role::accent:
    case Role::accentFill:
        return QColor(0x00, 0x6a, 0xd8);
    case Role::onAccent:
        return grey(1);
    case Role::controlFill:
        return grey(1);
    case Role::controlBorder:
        return grey(0, 0.14);
    case Role::hoverFill:
        return grey(0, 0.045);
    case Role::pressedFill:
        return grey(0, 0.10);
    case Role::selectedSegment:
        return grey(1);
    case Role::focusRing:
        return QColor(0x00, 0x6a, 0xd8, 0x96);
    case Role::track:
        return grey(0, 0.11);
    case Role::knob:
        return grey(1);
    case Role::warning:
        return QColor(0xae, 0x50, 0x00);
    case Role::danger:
    case Role::dangerFill:
        return QColor(0xc8, 0x14, 0x1e);
    case Role::onDanger:
        return grey(1);
    case Role::success:
        return QColor(0x1c, 0x77, 0x33);
    case Role::shadow:
        return grey(0, 0.22);
    case Role::scrim:
        return grey(0, 0.26);
    case Role::fieldFill:
        return grey(1);
    case Role::popupBorder:
        return grey(0, 0.14);
    }
    Q_UNREACHABLE();
}

QColor ownColor(Role role, ColorScheme scheme) {
    return scheme == ColorScheme::dark ? darkColor(role) : lightColor(role);
}

/// As near to the accent as can be read on every surface.
QColor readable(const QColor& accent, ColorScheme scheme) {
    const bool isDark = scheme == ColorScheme::dark;
    // The lightest of the dark surfaces, the darkest of the light ones.
    const QColor surface =
        ownColor(isDark ? Role::popupBackground : Role::windowBackground, scheme);
    for (double share = 0; share < 1; share += 0.05) {
        const QColor shade = composited(grey(isDark ? 1 : 0, share), accent);
        if (contrast(shade, surface) >= leastContrast)
            return shade;
    }
    return grey(isDark ? 1 : 0);
}

} // namespace

QColor color(Role role, ColorScheme scheme, const std::optional<QColor>& accent) {
    const QColor own = ownColor(role, scheme);
    if (!accent)
        return own;
    switch (role) {
    case Role::accent:
        return readable(*accent, scheme);
    case Role::accentFill:
        return *accent;
    case Role::onAccent:
        return grey(contrast(grey(1), *accent) >= leastContrast ? 1 : 0);
    case Role::focusRing: {
        QColor ring = readable(*accent, scheme);
        ring.setAlphaF(own.alphaF());
        return ring;
    }
    default:
        return own;
    }
}

QGradientStops fanGradientStops() {
    return {{0.0, hsb(0.53, 0.8, 0.95)}, {1.0, hsb(0.6, 0.85, 0.9)}};
}

QColor cpuSeries() {
    return hsb(0.07, 0.85, 0.95);
}

QColor gpuSeries() {
    return hsb(0.47, 0.75, 0.82);
}

QColor temperatureColor(double celsius, ColorScheme scheme) {
    const double hue = 0.53 - 0.52 * std::clamp((celsius - 40.0) / 55.0, 0.0, 1.0);
    if (scheme == ColorScheme::dark)
        return hsb(hue, 0.8, 0.95);
    // Yellow and green look lighter than red and blue of the same brightness.
    return hsb(hue, 1.0, hue > 0.1 && hue < 0.45 ? 0.42 : 0.5);
}

QGradientStops cardBorderStops() {
    return {{0.0, grey(1, 0.18)}, {0.5, grey(1, 0)}, {1.0, grey(0, 0.12)}};
}

double contrast(const QColor& first, const QColor& second) {
    const auto [low, high] = std::minmax({luminance(first), luminance(second)});
    return (high + 0.05) / (low + 0.05);
}

QColor composited(const QColor& above, const QColor& below) {
    const float opacity = above.alphaF();
    const auto mix = [opacity](float over, float under) {
        return over * opacity + under * (1 - opacity);
    };
    return QColor::fromRgbF(mix(above.redF(), below.redF()), mix(above.greenF(), below.greenF()),
                            mix(above.blueF(), below.blueF()));
}

} // namespace kestrowind::Palette
