#include "UI/DesignSystem/Palette.h"

#include <gmock/gmock.h>

#include <cmath>

namespace kestrowind {
namespace {

using Palette::Role;

double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& first, const QColor& second) {
    const auto [low, high] = std::minmax({luminance(first), luminance(second)});
    return (high + 0.05) / (low + 0.05);
}

TEST(PaletteTests, EveryTextIsReadableOnEverySurfaceInBothSchemes) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        const QColor window = Palette::color(Role::windowBackground, scheme);
        const QColor card = Palette::composited(Palette::color(Role::cardFill, scheme), window);
        const QColor popup = Palette::color(Role::popupBackground, scheme);
        for (const QColor& surface : {window, card, popup}) {
            for (const Role role : {Role::primaryText, Role::secondaryText, Role::tertiaryText,
                                    Role::accent, Role::warning, Role::danger, Role::success}) {
                const QColor text = Palette::composited(Palette::color(role, scheme), surface);
                EXPECT_GE(contrast(text, surface), 4.5)
                    << "role " << static_cast<int>(role) << ", dark "
                    << (scheme == ColorScheme::dark) << ", on " << surface.name().toStdString();
            }
            for (const double celsius : {20.0, 55.0, 67.5, 80.0, 100.0}) {
                EXPECT_GE(contrast(Palette::temperatureColor(celsius, scheme), surface), 3.0)
                    << celsius << " degrees, dark " << (scheme == ColorScheme::dark);
            }
        }
        for (const Role fill : {Role::accentFill, Role::dangerFill}) {
            EXPECT_GE(
                contrast(Palette::color(Role::onAccent, scheme), Palette::color(fill, scheme)),
                4.5);
        }
    }
}

} // namespace
} // namespace kestrowind
