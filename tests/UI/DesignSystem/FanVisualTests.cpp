#include "UI/DesignSystem/Scene.h"

#include "UI/DesignSystem/CardBackground.h"
#include "UI/DesignSystem/FanBladesShape.h"
#include "UI/DesignSystem/FanGauge.h"
#include "UI/DesignSystem/FanGaugeArcs.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SpinClock.h"
#include "UI/DesignSystem/SpinningFanBlades.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QTransform>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

TEST(FanBladesShapeTests, IsAsLargeAsTheShorterSideAndWholeAroundItsHub) {
    const QPainterPath path = FanBladesShape::path(QRectF(10, 20, 300, 200));
    EXPECT_TRUE(QRectF(60, 20, 200, 200).contains(path.boundingRect()));
    EXPECT_GT(path.boundingRect().height(), 150);
    for (int angle = 0; angle < 360; angle += 7) {
        QTransform turn;
        turn.translate(160, 120);
        turn.rotate(angle);
        EXPECT_TRUE(path.contains(turn.map(QPointF(21, 0)))) << "a hole in a blade at " << angle;
    }
}

TEST(SpinClockTests, TheAngleGoesOnFromWhereItIsWhenTheSpeedChanges) {
    const SpinClock::TimePoint start{};
    SpinClock clock;
    EXPECT_EQ(clock.turns(start + 5s), 0);
    clock.setSpeed(0.5, start);
    EXPECT_NEAR(clock.turns(start + 500ms), 0.25, 1e-9);
    clock.setSpeed(2, start + 500ms);
    EXPECT_NEAR(clock.turns(start + 500ms), 0.25, 1e-9);
    EXPECT_NEAR(clock.turns(start + 750ms), 0.75, 1e-9);
    EXPECT_NEAR(clock.turns(start + 1s), 0.25, 1e-9) << "whole turns are left out";
    for (const double standing : {0.0, -3.0, std::numeric_limits<double>::quiet_NaN()}) {
        clock.setSpeed(standing, start + 1s);
        EXPECT_EQ(clock.revolutionsPerSecond(), 0);
        EXPECT_NEAR(clock.turns(start + 9s), 0.25, 1e-9);
    }
}

TEST(SpinningFanBladesTests, TheBladesAreDrawnOnceForEachLook) {
    Scene scene("SpinningFanBlades { diameter: 24; revolutionsPerSecond: 2 }");
    auto& fan = dynamic_cast<SpinningFanBlades&>(scene.item());
    QSignalSpy rendered(&fan, &SpinningFanBlades::bladesRendered);
    scene.appearance().setForcedScheme(ColorScheme::light);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return fan.renderedLook().has_value(); }, 1000));

    const auto rendersAfter = [&](auto change) {
        rendered.clear();
        change();
        static_cast<void>(scene.window().grabWindow());
        static_cast<void>(scene.window().grabWindow());
        return rendered.count();
    };
    EXPECT_EQ(rendersAfter([] {}), 0);
    EXPECT_EQ(rendersAfter([&] { fan.setRevolutionsPerSecond(0.5); }), 0);
    EXPECT_EQ(rendersAfter([&] { fan.setDiameter(30); }), 1);
    EXPECT_EQ(rendersAfter([&] { fan.setFill(SpinningFanBlades::Fill::Parked); }), 1);
    EXPECT_EQ(rendersAfter([&] { scene.appearance().setForcedScheme(ColorScheme::dark); }), 1);
}

TEST(SpinningFanBladesTests, AsksForFramesOnlyWhileItTurnsAndIsSeen) {
    Scene scene("SpinningFanBlades { diameter: 24; revolutionsPerSecond: 2 }");
    auto& fan = dynamic_cast<SpinningFanBlades&>(scene.item());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    QSignalSpy frames(&scene.window(), &QQuickWindow::frameSwapped);

    const auto framesIn = [&](std::chrono::milliseconds time) {
        // Frames that were asked for before still come.
        QTest::qWait(60);
        frames.clear();
        QTest::qWait(static_cast<int>(time.count()));
        return frames.count();
    };
    struct Change {
        const char* name;
        std::function<void()> stop;
        std::function<void()> start;
    };
    const Change changes[] = {
        {"speed", [&] { fan.setRevolutionsPerSecond(-1); },
         [&] { fan.setRevolutionsPerSecond(1); }},
        {"active", [&] { fan.setActive(false); }, [&] { fan.setActive(true); }},
        {"item", [&] { fan.setVisible(false); }, [&] { fan.setVisible(true); }},
        {"window", [&] { scene.window().hide(); }, [&] { scene.window().show(); }},
        {"minimised", [&] { scene.window().showMinimized(); },
         [&] { scene.window().showNormal(); }},
    };
    for (const Change& change : changes) {
        const auto turning = framesIn(500ms);
        EXPECT_GE(turning, 8) << change.name;
        EXPECT_LE(turning, 32) << change.name << ": more than 60 frames a second";
        change.stop();
        EXPECT_FALSE(fan.isTurning()) << change.name;
        EXPECT_EQ(framesIn(200ms), 0) << change.name;
        change.start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return fan.isTurning(); }, 1000)) << change.name;
    }
}

TEST(SpinningFanBladesTests, TheTurnedImageIsWhatThePictureShows) {
    Scene scene("SpinningFanBlades { diameter: 60; fill: SpinningFanBlades.Parked }");
    scene.appearance().setForcedScheme(ColorScheme::light);
    scene.window().setColor(Qt::white);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    const QImage picture = scene.window().grabWindow();
    EXPECT_EQ(picture.pixelColor(30, 30), QColor(102, 102, 102)) << "the hub";
    EXPECT_EQ(picture.pixelColor(3, 3), QColor(Qt::white)) << "the corner";
}

TEST(FanGaugeTests, TheRingRunsClockwiseAroundAnOpeningAtTheBottom) {
    const FanGauge::Look look{.diameter = 100, .lineWidth = 8, .gapDegrees = 90};
    const QPainterPath ring = FanGauge::ringPath(look, 1);
    const double reach = 50 * std::sqrt(0.5);
    const auto near = [](const QPointF& point, double x, double y) {
        EXPECT_NEAR(point.x(), x, 0.05);
        EXPECT_NEAR(point.y(), y, 0.05);
    };
    near(ring.pointAtPercent(0), 50 - reach, 50 + reach);
    near(ring.pointAtPercent(0.5), 50, 0);
    near(ring.pointAtPercent(1), 50 + reach, 50 + reach);
    near(FanGauge::ringPath(look, 0.5).currentPosition(), 50, 0);
    EXPECT_TRUE(FanGauge::ringPath(look, 0).isEmpty());
}

TEST(FanGaugeArcsTests, AChangeGoesOnFromWhatIsDisplayed) {
    Scene scene("FanGaugeArcs { x: 40; y: 40; diameter: 100; lineWidth: 8; gapDegrees: 90;"
                " animationDuration: 0.2 }");
    auto& gauge = dynamic_cast<FanGaugeArcs&>(scene.item());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    QCoreApplication::processEvents();
    QSignalSpy changed(&gauge, &FanGaugeArcs::fractionChanged);

    gauge.setFraction(1.3);
    EXPECT_EQ(gauge.fraction(), 1);
    EXPECT_EQ(gauge.displayedFraction(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return gauge.displayedFraction() > 0.2; }, 1000));
    gauge.setFraction(1);
    EXPECT_EQ(changed.count(), 1) << "an equal fraction changes nothing";

    const double displayed = gauge.displayedFraction();
    gauge.setFraction(-2);
    EXPECT_EQ(gauge.fraction(), 0);
    EXPECT_EQ(gauge.displayedFraction(), displayed);
    EXPECT_EQ(gauge.movement().startValue().toDouble(), displayed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return gauge.displayedFraction() == 0; }, 1000));

    gauge.setActive(false);
    gauge.setFraction(0.7);
    EXPECT_EQ(gauge.displayedFraction(), 0.7) << "nobody looks: no movement";
    gauge.setActive(true);
    gauge.setFraction(0.2);
    scene.window().hide();
    EXPECT_TRUE(QTest::qWaitFor([&] { return gauge.displayedFraction() == 0.2; }, 100));
    EXPECT_EQ(gauge.movement().state(), QAbstractAnimation::Stopped);
}

TEST(CardBackgroundTests, TheStretchedPictureEqualsOnePaintedAtFullSize) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        Scene scene("CardBackground { width: 300; height: 200; cornerRadius: 16;"
                    " tint: '#20ff0000' }");
        scene.appearance().setForcedScheme(scheme);
        const QColor window = Palette::color(Palette::Role::windowBackground, scheme);
        scene.window().setColor(window);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
        const QImage shown = scene.window().grabWindow();

        QImage expected(300, 200, QImage::Format_ARGB32_Premultiplied);
        expected.fill(window);
        QPainter painter(&expected);
        CardBackground::paint(
            painter, QRectF(0, 0, 300, 200),
            {.cornerRadius = 16, .tint = QColor(0xff, 0, 0, 0x20), .scheme = scheme});
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        painter.drawImage(0, 0, shown);
        painter.end();
        const QImage difference = expected.convertToFormat(QImage::Format_RGB888);
        EXPECT_LE(std::ranges::max(std::span(difference.constBits(), 300 * 200 * 3)), 3)
            << "dark " << (scheme == ColorScheme::dark);
    }
}

} // namespace
} // namespace kestrowind
