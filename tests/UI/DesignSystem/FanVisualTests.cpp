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

#include <cmath>
#include <limits>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

TEST(FanBladesShapeTests, HasThreeEqualBladesAndAHubCentredAsLargeAsTheShorterSide) {
    const QRectF rectangle(10, 20, 300, 200);
    const QPointF center(160, 120);
    const QPainterPath path = FanBladesShape::path(rectangle);

    // 2 device units a unit of the drawing: the first blade's corners.
    const QPointF corners[] = {{-7, -12}, {13, -44}, {19, -30}, {12, -4}};
    for (int corner = 0; corner < 4; ++corner) {
        const QPainterPath::Element element = path.elementAt(corner * 3);
        EXPECT_NEAR(element.x, center.x() + 2 * corners[corner].x(), 1e-9);
        EXPECT_NEAR(element.y, center.y() + 2 * corners[corner].y(), 1e-9);
    }

    EXPECT_TRUE(QRectF(60, 20, 200, 200).contains(path.boundingRect()));
    for (int angle = 0; angle < 360; angle += 7) {
        for (const double distance : {5.0, 21.0, 40.0, 60.0, 85.0}) {
            const auto at = [&](double degrees) {
                QTransform turn;
                turn.translate(center.x(), center.y());
                turn.rotate(degrees);
                return path.contains(turn.map(QPointF(distance, 0)));
            };
            EXPECT_EQ(at(angle), at(angle + 120)) << angle << " at " << distance;
            EXPECT_TRUE(distance > 22 || at(angle)) << "a hole where blades and hub overlap";
        }
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
    EXPECT_EQ(*fan.renderedLook(),
              (SpinningFanBlades::RenderedLook{30, SpinningFanBlades::Fill::Parked, 1, true}));
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

    // A full circle: the ticks stand at a quarter, half and three quarters.
    const FanGauge::Look circle{.diameter = 100, .lineWidth = 8, .gapDegrees = 0};
    const QPainterPath ticks = FanGauge::tickPath(circle);
    ASSERT_EQ(ticks.elementCount(), 6);
    const QPointF ends[] = {{6.5, 50}, {-6.5, 50}, {50, 6.5}, {50, -6.5}, {93.5, 50}, {106.5, 50}};
    for (int index = 0; index < 6; ++index)
        near(ticks.elementAt(index), ends[index].x(), ends[index].y());
    EXPECT_NEAR(FanGauge::tickWidth(circle), 0.942477796, 1e-8);
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
        painter.end();
        int worst = 0;
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 300; ++x) {
                const QColor one = shown.pixelColor(x, y);
                const QColor other = expected.pixelColor(x, y);
                worst = std::max({worst, std::abs(one.red() - other.red()),
                                  std::abs(one.green() - other.green()),
                                  std::abs(one.blue() - other.blue())});
            }
        }
        EXPECT_LE(worst, 3) << "dark " << (scheme == ColorScheme::dark);
    }
}

} // namespace
} // namespace kestrowind
