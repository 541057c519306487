#pragma once

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// A spring as designers speak of it: `response` is the period of the undamped oscillation in
/// seconds, `dampingFraction` 1 is critically damped, below 1 it overshoots.
struct Spring {
    double response = 0.3;
    double dampingFraction = 1.0;

    bool operator==(const Spring&) const = default;

    /// Where a spring released at rest at 0 is, with the target at 1, after `seconds`.
    [[nodiscard]] double position(double seconds) const;
    [[nodiscard]] double velocity(double seconds) const;
    /// After this time in seconds it stays within a thousandth of the target.
    [[nodiscard]] double settlingTime() const;

    /// The movement over the settling time as an easing curve, within half a hundredth of
    /// position().
    [[nodiscard]] QEasingCurve easingCurve() const;
};

/// A spring in the terms of Qt's animations.
struct SpringTiming {
    Q_GADGET
    Q_PROPERTY(int duration MEMBER duration CONSTANT FINAL)
    Q_PROPERTY(QEasingCurve easing MEMBER easing CONSTANT FINAL)
    QML_VALUE_TYPE(springTiming)

public:
    int duration = 0; ///< milliseconds
    QEasingCurve easing = {};

    bool operator==(const SpringTiming&) const = default;

    [[nodiscard]] static SpringTiming of(Spring spring);
};

/// The springs of the interface by what moves.
class Springs final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::SpringTiming hover READ hover CONSTANT FINAL)
    Q_PROPERTY(kestrowind::SpringTiming collection READ collection CONSTANT FINAL)
    Q_PROPERTY(kestrowind::SpringTiming grab READ grab CONSTANT FINAL)
    Q_PROPERTY(kestrowind::SpringTiming release READ release CONSTANT FINAL)
    Q_PROPERTY(kestrowind::SpringTiming edit READ edit CONSTANT FINAL)
    Q_PROPERTY(kestrowind::SpringTiming level READ level CONSTANT FINAL)
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    [[nodiscard]] static SpringTiming hover() { return SpringTiming::of({0.18, 0.85}); }
    [[nodiscard]] static SpringTiming collection() { return SpringTiming::of({0.28, 0.85}); }
    [[nodiscard]] static SpringTiming grab() { return SpringTiming::of({0.2, 0.85}); }
    [[nodiscard]] static SpringTiming release() { return SpringTiming::of({0.25, 0.85}); }
    [[nodiscard]] static SpringTiming edit() { return SpringTiming::of({0.5, 0.85}); }
    [[nodiscard]] static SpringTiming level() { return SpringTiming::of({0.8, 1.0}); }
    [[nodiscard]] Q_INVOKABLE static kestrowind::SpringTiming spring(double response,
                                                                     double dampingFraction);
};

} // namespace kestrowind
