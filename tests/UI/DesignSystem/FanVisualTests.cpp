#include "UI/DesignSystem/Scene.h"

#include "UI/DesignSystem/FanGaugeArcs.h"
#include "UI/DesignSystem/SpinClock.h"
#include "UI/DesignSystem/SpinningFanBlades.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

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

TEST(SpinningFanBladesTests, AskForNoMoreFramesThanTheFastestNeedsThatIsSeen) {
    Scene scene(R"(
        Row {
            SpinningFanBlades { diameter: 24; revolutionsPerSecond: 0.5 }
            SpinningFanBlades { diameter: 24; revolutionsPerSecond: 2 }
        })");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&scene.window()));
    QSignalSpy frames(&scene.window(), &QQuickWindow::frameSwapped);
    const auto framesIn = [&](int milliseconds) {
        // Frames that were asked for before still come.
        QTest::qWait(60);
        frames.clear();
        QTest::qWait(milliseconds);
        return frames.count();
    };
    EXPECT_LE(framesIn(600), 19) << "more than 30 a second";
    delete scene.item().childItems()[1];
    EXPECT_LE(framesIn(600), 13) << "more than 20 a second";
    const QImage before = scene.window().grabWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scene.window().grabWindow() != before; }));

    auto& fan = dynamic_cast<SpinningFanBlades&>(*scene.item().childItems()[0]);
    struct Change {
        const char* name;
        std::function<void()> stop;
        std::function<void()> start;
    };
    const Change changes[] = {
        {"speed", [&] { fan.setRevolutionsPerSecond(-1); },
         [&] { fan.setRevolutionsPerSecond(2); }},
        {"active", [&] { fan.setActive(false); }, [&] { fan.setActive(true); }},
        {"item", [&] { fan.setVisible(false); }, [&] { fan.setVisible(true); }},
        {"window", [&] { scene.window().hide(); }, [&] { scene.window().show(); }},
        {"minimised", [&] { scene.window().showMinimized(); },
         [&] { scene.window().showNormal(); }},
    };
    for (const Change& change : changes) {
        change.stop();
        EXPECT_FALSE(fan.isTurning()) << change.name;
        EXPECT_EQ(framesIn(150), 0) << change.name;
        change.start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return fan.isTurning(); }, 1000)) << change.name;
        EXPECT_GT(framesIn(150), 0) << change.name;
    }
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

} // namespace
} // namespace kestrowind
