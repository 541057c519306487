#include "UI/DesignSystem/Scene.h"

#include <QTest>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

QImage shown(const QByteArray& body, const QSize& size) {
    Scene scene(body, size);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    return scene.inBothSchemes();
}

TEST(PictureTests, TheFanIsDrawnInAllItsColoursAndSizes) {
    const QByteArray fans = R"(
        Grid {
            columns: 3; spacing: 12; padding: 8
            SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Airflow }
            SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Accent }
            SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Parked }
            FanGlyph { side: 60; width: 80; color: AppColors.primaryText }
            FanGlyph { side: 16; color: AppColors.warning }
            AppIcon { side: 48; width: 72; height: 72 }
        })";
    EXPECT_TRUE(looksLike(QStringLiteral("DesignSystem/fans"), shown(fans, {260, 160})));
}

TEST(PictureTests, GaugesShowTheirFractionBetweenTrackAndTicks) {
    const QByteArray gauges = R"(
        Row {
            spacing: 24; padding: 16
            FanGaugeArcs { diameter: 110; lineWidth: 8; gapDegrees: 90; fraction: 0.35 }
            FanGaugeArcs { diameter: 110; lineWidth: 8; gapDegrees: 90; fraction: 0 }
            FanGaugeArcs { diameter: 60; lineWidth: 6; gapDegrees: 120; fraction: 1 }
        })";
    EXPECT_TRUE(looksLike(QStringLiteral("DesignSystem/gauges"), shown(gauges, {360, 142})));
}

TEST(PictureTests, CardsAreLitAboveAndThrowASoftShadow) {
    const QByteArray cards = R"(
        Item {
            CardBackground { x: 16; y: 12; width: 150; height: 90; cornerRadius: 16 }
            CardBackground { x: 182; y: 12; width: 96; height: 40; cornerRadius: 99; tint: '#40ff0000' }
            SoftShadow { x: 168; y: 52; width: 124; height: 64; blurRadius: 8; offset: 4
                         cornerRadius: 6; color: AppColors.shadow }
            SoftShadow { x: 292; y: 20; width: 60; height: 60; blurRadius: 8; color: AppColors.shadow }
        })";
    EXPECT_TRUE(looksLike(QStringLiteral("DesignSystem/cards"), shown(cards, {360, 116})));
}

} // namespace
} // namespace kestrowind
