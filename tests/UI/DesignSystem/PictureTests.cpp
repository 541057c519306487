#include "UI/DesignSystem/Scene.h"

#include <QTest>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

struct Row {
    const char* name;
    QSize size;
    const char* body;
};

const Row rows[] = {
    {"fans", {260, 160}, R"(
        Grid {
            columns: 3; spacing: 12; padding: 8
            SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Airflow }
            SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Accent }
            SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Parked }
            FanGlyph { side: 60; width: 80; color: AppColors.primaryText }
            FanGlyph { side: 16; color: AppColors.warning }
            AppIcon { side: 48; width: 72; height: 72 }
        })"},
    {"gauges", {360, 142}, R"(
        Row {
            spacing: 24; padding: 16
            FanGaugeArcs { diameter: 110; lineWidth: 8; gapDegrees: 90; fraction: 0.35 }
            FanGaugeArcs { diameter: 110; lineWidth: 8; gapDegrees: 90; fraction: 0 }
            FanGaugeArcs { diameter: 60; lineWidth: 6; gapDegrees: 120; fraction: 1 }
        })"},
    {"cards", {360, 116}, R"(
        Item {
            CardBackground { x: 16; y: 12; width: 150; height: 90; cornerRadius: 16 }
            CardBackground { x: 182; y: 12; width: 96; height: 40; cornerRadius: 99; tint: '#40ff0000' }
            SoftShadow { x: 168; y: 52; width: 124; height: 64; blurRadius: 8; offset: 4
                         cornerRadius: 6; color: AppColors.shadow }
            Rectangle { x: 320; y: 84; width: 24; height: 24; color: AppColors.temperatureColor(67.5) }
            SoftShadow { x: 292; y: 20; width: 60; height: 60; blurRadius: 8; color: AppColors.shadow }
        })"},
};

TEST(PictureTests, WhatIsPaintedLooksRightInBothSchemes) {
    for (const Row& row : rows) {
        Scene scene(row.body, row.size);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
        EXPECT_TRUE(looksLike(QStringLiteral("DesignSystem/") + QLatin1String(row.name),
                              scene.inBothSchemes()));
    }
}

} // namespace
} // namespace kestrowind
