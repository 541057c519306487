#include "UI/DesignSystem/Glide.h"
#include "UI/DesignSystem/Scene.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace kestrowind {
namespace {

/// The oscillator integrated in small steps, to check the closed form and the easing against.
double integrated(Spring spring, double seconds) {
    const double natural = 2 * std::numbers::pi / spring.response;
    const int steps = 20000;
    const double step = seconds / steps;
    double position = 0;
    double velocity = 0;
    for (int index = 0; index < steps; ++index) {
        const double force =
            natural * natural * (1 - position) - 2 * spring.dampingFraction * natural * velocity;
        velocity += force * step;
        position += velocity * step;
    }
    return position;
}

TEST(SpringTests, MovesLikeADampedOscillatorAndSoDoesItsEasing) {
    for (const Spring spring : {Spring{0.18, 0.85}, Spring{0.28, 0.85}, Spring{0.8, 1.0},
                                Spring{0.4, 0.4}, Spring{0.3, 1.3}}) {
        const double duration = spring.settlingTime();
        EXPECT_NEAR(SpringTiming::of(spring).duration, duration * 1000, 1);
        const QEasingCurve easing = spring.easingCurve();
        for (double progress = 0.05; progress < 1; progress += 0.05) {
            const double expected = integrated(spring, progress * duration);
            EXPECT_NEAR(spring.position(progress * duration), expected, 0.003)
                << spring.response << ' ' << spring.dampingFraction << " at " << progress;
            EXPECT_NEAR(easing.valueForProgress(progress), expected, 0.005)
                << spring.response << ' ' << spring.dampingFraction << " at " << progress;
        }
        EXPECT_EQ(easing.valueForProgress(0), 0);
        EXPECT_EQ(easing.valueForProgress(1), 1);
        for (double later = duration; later < 3 * duration; later += duration / 50)
            EXPECT_NEAR(spring.position(later), 1, 0.0011);
        EXPECT_GT(std::abs(spring.position(duration / 2) - 1), 0.0011) << "no longer than needed";
    }
}

TEST(GlideTests, MovesByWholePixelsOnly) {
    Scene scene("Glide { springs: true; timing: Springs.hover; target: 10.4 }");
    auto& glide = dynamic_cast<Glide&>(scene.item());
    EXPECT_EQ(glide.value(), 10) << "it begins where it belongs";
    QSignalSpy moved(&glide, &Glide::valueChanged);
    glide.setTarget(13.2);
    EXPECT_EQ(glide.value(), 10);
    EXPECT_TRUE(QTest::qWaitFor([&] { return glide.value() == 13; }));
    EXPECT_LE(moved.size(), 3);
    glide.setSprings(false);
    glide.setTarget(20);
    EXPECT_EQ(glide.value(), 20);
}

} // namespace
} // namespace kestrowind
