#include "UI/DesignSystem/Palette.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using Palette::Colors;
using Palette::contrast;

TEST(PaletteTests, EveryTextIsReadableOnEverySurfaceInBothSchemes) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        const Colors& colors = Palette::colors(scheme);
        const QColor window = colors.windowBackground;
        const QColor card = Palette::composited(colors.cardFill, window);
        const QColor popup = colors.popupBackground;
        const QColor panel = colors.panelBackground;
        const auto surfaces = {window, card, popup, panel};
        for (const QColor& surface : surfaces) {
            for (const QColor& ink :
                 {colors.primaryText, colors.secondaryText, colors.tertiaryText, colors.accent,
                  colors.warning, colors.danger, colors.success}) {
                const QColor text = Palette::composited(ink, surface);
                EXPECT_GE(contrast(text, surface), 4.5)
                    << ink.name().toStdString() << ", dark " << (scheme == ColorScheme::dark)
                    << ", on " << surface.name().toStdString();
            }
            // On the panel they are text, elsewhere marks.
            for (int celsius = 20; celsius <= 110; ++celsius) {
                EXPECT_GE(contrast(Palette::temperatureColor(celsius, scheme), surface),
                          surface == panel ? 4.5 : 3.0)
                    << celsius << " degrees, dark " << (scheme == ColorScheme::dark);
            }
        }
        EXPECT_GE(contrast(colors.onDanger, colors.dangerFill), 4.5);
        using Accent = std::optional<QColor>;
        for (const Accent& accent :
             {Accent(), Accent(Qt::yellow), Accent(Qt::blue), Accent(Qt::gray), Accent(Qt::black),
              Accent(Qt::white), Accent(QColor(0xe6, 0x2d, 0x42))}) {
            const Colors chosen = Palette::colors(scheme, accent);
            EXPECT_GE(contrast(chosen.onAccent, chosen.accentFill), 4.5);
            for (const QColor& surface : surfaces)
                EXPECT_GE(contrast(chosen.accent, surface), 4.5) << surface.name().toStdString();
        }
    }
}

} // namespace
} // namespace kestrowind
