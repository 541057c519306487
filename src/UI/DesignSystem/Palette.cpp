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

struct Shades {
    QColor Colors::*color;
    QColor dark;
    QColor light;
};

Colors shades(QColor Shades::*shade) {
    static const Shades table[] = {
        {&Colors::windowBackground, QColor(0x1c, 0x1c, 0x1f), QColor(0xf2, 0xf2, 0xf5)},
        {&Colors::cardFill, grey(1, 0.06), grey(1, 0.78)},
        {&Colors::popupBackground, QColor(0x2c, 0x2c, 0x30), QColor(0xfb, 0xfb, 0xfd)},
        {&Colors::panelBackground, QColor(0x18, 0x18, 0x1b), QColor(0xfb, 0xfb, 0xfd)},
        {&Colors::separator, grey(1, 0.10), grey(0, 0.10)},
        {&Colors::primaryText, grey(1, 0.92), grey(0, 0.87)},
        {&Colors::secondaryText, grey(1, 0.74), grey(0.38)},
        {&Colors::tertiaryText, grey(0.68), grey(0.4)},
        {&Colors::quaternaryFill, grey(1, 0.14), grey(0, 0.10)},
        {&Colors::accent, QColor(0x3d, 0x9b, 0xff), QColor(0x00, 0x6a, 0xd8)},
        {&Colors::accentFill, QColor(0x0a, 0x70, 0xe0), QColor(0x00, 0x6a, 0xd8)},
        {&Colors::onAccent, grey(1), grey(1)},
        {&Colors::controlFill, grey(1, 0.11), grey(1)},
        {&Colors::controlBorder, grey(1, 0.10), grey(0, 0.14)},
        {&Colors::hoverFill, grey(1, 0.07), grey(0, 0.045)},
        {&Colors::pressedFill, grey(1, 0.14), grey(0, 0.10)},
        {&Colors::selectedSegment, grey(1, 0.18), grey(1)},
        {&Colors::focusRing, QColor(0x3d, 0x9b, 0xff, 0xb4), QColor(0x00, 0x6a, 0xd8, 0x96)},
        {&Colors::track, grey(1, 0.14), grey(0, 0.11)},
        {&Colors::knob, grey(0.96), grey(1)},
        {&Colors::warning, QColor(0xff, 0x9f, 0x0a), QColor(0xae, 0x50, 0x00)},
        {&Colors::danger, QColor(0xff, 0x69, 0x61), QColor(0xc8, 0x14, 0x1e)},
        {&Colors::dangerFill, QColor(0xd2, 0x2d, 0x32), QColor(0xc8, 0x14, 0x1e)},
        {&Colors::onDanger, grey(1), grey(1)},
        {&Colors::success, QColor(0x30, 0xd1, 0x58), QColor(0x1c, 0x77, 0x33)},
        {&Colors::shadow, grey(0, 0.5), grey(0, 0.22)},
        {&Colors::scrim, grey(0, 0.48), grey(0, 0.26)},
        {&Colors::fieldFill, grey(0, 0.28), grey(1)},
        {&Colors::popupBorder, grey(1, 0.20), grey(0, 0.14)},
    };
    Colors colors;
    for (const Shades& row : table)
        colors.*row.color = row.*shade;
    return colors;
}

/// As near to the accent as can be read on every surface.
QColor readable(const QColor& accent, ColorScheme scheme) {
    const bool isDark = scheme == ColorScheme::dark;
    // The lightest of the dark surfaces, the darkest of the light ones.
    const QColor surface =
        isDark ? colors(scheme).popupBackground : colors(scheme).windowBackground;
    for (double share = 0; share < 1; share += 0.05) {
        const QColor shade = composited(grey(isDark ? 1 : 0, share), accent);
        if (contrast(shade, surface) >= leastContrast)
            return shade;
    }
    return grey(isDark ? 1 : 0);
}

} // namespace

const Colors& colors(ColorScheme scheme) {
    static const Colors dark = shades(&Shades::dark);
    static const Colors light = shades(&Shades::light);
    return scheme == ColorScheme::dark ? dark : light;
}

Colors colors(ColorScheme scheme, const std::optional<QColor>& accent) {
    Colors all = colors(scheme);
    if (accent) {
        all.accent = readable(*accent, scheme);
        all.accentFill = *accent;
        all.onAccent = grey(contrast(grey(1), *accent) >= leastContrast ? 1 : 0);
        all.focusRing = faded(all.accent, all.focusRing.alphaF());
    }
    return all;
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

QColor faded(QColor color, double part) {
    color.setAlphaF(color.alphaF() * static_cast<float>(part));
    return color;
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
