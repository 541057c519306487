#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/Scene.h"
#include "UI/DesignSystem/SymbolGlyphs.h"

#include <QGuiApplication>
#include <QPalette>
#include <QRawFont>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using Palette::Colors;
using Palette::contrast;

class SystemAppearanceFake final : public SystemAppearance {
public:
    [[nodiscard]] std::optional<ColorScheme> colorScheme() const override { return m_scheme; }
    [[nodiscard]] std::optional<AccentColor> accentColor() const override { return m_accent; }
    void setAccent(std::optional<AccentColor> accent) {
        m_accent = accent;
        Q_EMIT accentColorChanged();
    }
    void set(std::optional<ColorScheme> scheme) {
        m_scheme = scheme;
        Q_EMIT colorSchemeChanged();
    }

private:
    std::optional<ColorScheme> m_scheme;
    std::optional<AccentColor> m_accent;
};

void setApplicationBackground(const QColor& color) {
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, color);
    QGuiApplication::setPalette(palette);
    QCoreApplication::processEvents();
}

TEST(SceneAppearanceTests, ForcedBeatsTheSystemWhichBeatsThePalette) {
    setApplicationBackground(Qt::white);
    QQmlEngine engine;
    SceneAppearance& appearance = SceneAppearance::of(engine);
    EXPECT_EQ(&appearance, &SceneAppearance::of(engine));
    int changes = 0;
    QObject::connect(&appearance, &SceneAppearance::colorSchemeChanged, [&] { ++changes; });
    EXPECT_FALSE(appearance.isDark());

    setApplicationBackground(Qt::black);
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(changes, 1);

    auto system = std::make_unique<SystemAppearanceFake>();
    appearance.setSystemAppearance(system.get());
    EXPECT_TRUE(appearance.isDark()) << "a system without a preference decides nothing";
    system->set(ColorScheme::light);
    EXPECT_FALSE(appearance.isDark());
    EXPECT_EQ(changes, 2);
    system->set(ColorScheme::light);
    EXPECT_EQ(changes, 2);

    appearance.setForcedScheme(ColorScheme::dark);
    EXPECT_TRUE(appearance.isDark());
    appearance.setForcedScheme(std::nullopt);
    EXPECT_FALSE(appearance.isDark());

    system.reset();
    appearance.setForcedScheme(std::nullopt);
    EXPECT_TRUE(appearance.isDark()) << "without the system the palette is asked again";
    setApplicationBackground(Qt::white);
}

TEST(SceneAppearanceTests, BindingsFollowTheAccentOfTheSystem) {
    SystemAppearanceFake system;
    Scene scene("Rectangle { color: AppColors.accentFill }");
    scene.appearance().setSystemAppearance(&system);
    const auto color = [&] { return scene.item().property("color").value<QColor>(); };
    const QColor own = color();
    system.setAccent(AccentColor{.red = 1, .green = 0.5});
    EXPECT_EQ(color(), QColor::fromRgbF(1, 0.5, 0));
    system.setAccent(std::nullopt);
    EXPECT_EQ(color(), own);
}

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

TEST(SymbolTests, EveryNameHasAGlyphOfItsOwnInTheFont) {
    const QRawFont font(SymbolGlyphs::fontFile(), 24);
    ASSERT_TRUE(font.isValid());
    QStringList glyphs{SymbolGlyphs::glyph(QStringLiteral("no.such.symbol"))};
    for (const QString& name : SymbolGlyphs::names()) {
        const QString glyph = SymbolGlyphs::glyph(name);
        ASSERT_EQ(glyph.size(), 1);
        EXPECT_TRUE(font.supportsCharacter(glyph[0])) << name.toStdString();
        EXPECT_FALSE(glyphs.contains(glyph)) << name.toStdString();
        glyphs.append(glyph);
    }
    EXPECT_EQ(SymbolGlyphs::fontFamily(), QStringLiteral("Material Icons"));
}

} // namespace
} // namespace kestrowind
