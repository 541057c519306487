#pragma once

#include "UI/DesignSystem/Spring.h"

#include <QQuickItem>
#include <QTimer>

#include <chrono>

namespace kestrowind {

/// A coordinate on its way to where it belongs, in whole device pixels and with half of the frames
/// that the window's grid allows. For what moves with every sample: a Behavior would draw at the
/// display's rate, also where nothing has moved by a pixel.
class Glide : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(double target READ target WRITE setTarget NOTIFY targetChanged FINAL)
    Q_PROPERTY(double value READ value NOTIFY valueChanged FINAL)
    Q_PROPERTY(bool springs READ springs WRITE setSprings NOTIFY springsChanged FINAL)
    Q_PROPERTY(
        kestrowind::SpringTiming timing READ timing WRITE setTiming NOTIFY timingChanged FINAL)
    QML_ELEMENT

public:
    explicit Glide(QQuickItem* parent = nullptr);

    [[nodiscard]] double target() const { return m_target; }
    void setTarget(double target);
    [[nodiscard]] double value() const { return m_value; }
    /// Whether another target is sprung to; else the value is there at once.
    [[nodiscard]] bool springs() const { return m_springs; }
    void setSprings(bool springs);
    [[nodiscard]] const SpringTiming& timing() const { return m_timing; }
    void setTiming(const SpringTiming& timing);

Q_SIGNALS:
    void targetChanged();
    void valueChanged();
    void springsChanged();
    void timingChanged();

protected:
    void componentComplete() override;

private:
    using Clock = std::chrono::steady_clock;

    void depart();
    void step();
    void setValue(double value);
    [[nodiscard]] double inPixels(double value) const;

    double m_target = 0;
    double m_value = 0;
    bool m_springs = false;
    SpringTiming m_timing;
    SpringTiming m_way; ///< of the running movement
    double m_start = 0; ///< and where it set out
    Clock::time_point m_departure;
    Clock::duration m_duration{};
    QTimer m_nextStep;
};

} // namespace kestrowind
