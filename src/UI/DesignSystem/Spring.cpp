#include "UI/DesignSystem/Spring.h"

#include <QPointF>

#include <cmath>
#include <numbers>

namespace kestrowind {
namespace {

constexpr double settledWithin = 0.001;
/// Qt's spline has room for ten segments and writes past its end with more; they are short at the
/// start, where a spring moves most.
constexpr int easingSegments = 10;

} // namespace

double Spring::position(double seconds) const {
    if (seconds <= 0)
        return 0;
    const double natural = 2 * std::numbers::pi / response;
    const double decay = dampingFraction * natural;
    const double discriminant = 1 - dampingFraction * dampingFraction;
    if (std::abs(discriminant) < 1e-9)
        return 1 - std::exp(-natural * seconds) * (1 + natural * seconds);
    if (discriminant > 0) {
        const double damped = natural * std::sqrt(discriminant);
        return 1 - std::exp(-decay * seconds) *
                       (std::cos(damped * seconds) + decay / damped * std::sin(damped * seconds));
    }
    const double spread = natural * std::sqrt(-discriminant);
    const double slow = decay - spread;
    const double fast = decay + spread;
    return 1 -
           (fast * std::exp(-slow * seconds) - slow * std::exp(-fast * seconds)) / (fast - slow);
}

double Spring::velocity(double seconds) const {
    const double step = response * 1e-5;
    return (position(seconds + step) - position(seconds - step)) / (2 * step);
}

double Spring::settlingTime() const {
    // Walked backwards from a time when even the slowest of our springs is at rest.
    const double step = response / 100;
    double time = response * 20;
    while (time > step && std::abs(position(time - step) - 1) < settledWithin)
        time -= step;
    return time;
}

QEasingCurve Spring::easingCurve() const {
    const double duration = settlingTime();
    const auto border = [](int segment) {
        return std::pow(static_cast<double>(segment) / easingSegments, 1.75);
    };
    QEasingCurve curve(QEasingCurve::BezierSpline);
    for (int segment = 0; segment < easingSegments; ++segment) {
        const double start = border(segment);
        const double end = border(segment + 1);
        const double target = segment + 1 == easingSegments ? 1.0 : position(end * duration);
        // Control points a third along on the tangents make the cubic a Hermite one.
        const double third = (end - start) / 3;
        curve.addCubicBezierSegment(
            {start + third,
             position(start * duration) + velocity(start * duration) * duration * third},
            {end - third, target - velocity(end * duration) * duration * third}, {end, target});
    }
    return curve;
}

SpringTiming SpringTiming::of(Spring spring) {
    return {static_cast<int>(std::lround(spring.settlingTime() * 1000)), spring.easingCurve()};
}

SpringTiming Springs::spring(double response, double dampingFraction) {
    return SpringTiming::of({response, dampingFraction});
}

} // namespace kestrowind
