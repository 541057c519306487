#include "UI/DesignSystem/Scene.h"

#include <QGuiApplication>
#include <QPalette>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

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

} // namespace
} // namespace kestrowind
