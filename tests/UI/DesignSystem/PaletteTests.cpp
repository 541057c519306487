#include "UI/DesignSystem/Palette.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using Palette::Role;

using Palette::contrast;

TEST(PaletteTests, EveryTextIsReadableOnEverySurfaceInBothSchemes) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        const QColor window = Palette::color(Role::windowBackground, scheme);
        const QColor card = Palette::composited(Palette::color(Role::cardFill, scheme), window);
        const QColor popup = Palette::color(Role::popupBackground, scheme);
        const QColor panel = Palette::color(Role::panelBackground, scheme);
        const auto surfaces = {window, card, popup, panel};
        for (const QColor& surface : surfaces) {
            for (const Role role : {Role::primaryText, Role::secondaryText, Role::tertiaryText,
                                    Role::accent, Role::warning, Role::danger, Role::success}) {
                const QColor text = Palette::composited(Palette::color(role, scheme), surface);
                EXPECT_GE(contrast(text, surface), 4.5)
                    << "role " << static_cast<int>(role) << ", dark "
                    << (scheme == ColorScheme::dark) << ", on " << surface.name().toStdString();
            }
            // On the panel they are text, elsewhere marks.
            for (int celsius = 20; celsius <= 110; ++celsius) {
                EXPECT_GE(contrast(Palette::temperatureColor(celsius, scheme), surface),
                          surface == panel ? 4.5 : 3.0)
                    << celsius << " degrees, dark " << (scheme == ColorScheme::dark);
            }
        }
        EXPECT_GE(contrast(Palette::color(Role::onDanger, scheme),
                           Palette::color(Role::dangerFill, scheme)),
                  4.5);
        for (const std::optional<QColor>& accent : {std::optional<QColor>(),
                                                    {QColor(Qt::yellow)},
                                                    {QColor(Qt::blue)},
                                                    {QColor(Qt::gray)},
                                                    {QColor(Qt::black)},
                                                    {QColor(Qt::white)},
                                                    {QColor(0xe6, 0x2d, 0x42)}}) {
            const auto of = [&](Role role) { return Palette::color(role, scheme, accent); };
            EXPECT_GE(contrast(of(Role::onAccent), of(Role::accentFill)), 4.5);
            for (const QColor& surface : surfaces)
                EXPECT_GE(contrast(of(Role::accent), surface), 4.5) << surface.name().toStdString();
        }
    }
}

} // namespace
} // namespace kestrowind
