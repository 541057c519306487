#include "UI/DesignSystem/Glide.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/FrameGrid.h"

#include <QQuickWindow>

#include <cmath>

namespace kestrowind {
namespace {

/// What moves by some pixels in most of a second looks the same with half of the frames.
std::chrono::milliseconds untilNextStep(const QQuickWindow& window) {
    return FrameGrid::untilNext(2 * FrameGrid::shortestBeat(window));
}

} // namespace

Glide::Glide(QQuickItem* parent)
    : QQuickItem(parent) {
    m_nextStep.setSingleShot(true);
    m_nextStep.setTimerType(Qt::PreciseTimer);
    connect(&m_nextStep, &QTimer::timeout, this, &Glide::step);
}

void Glide::setTarget(double target) {
    if (!assignIfChanged(m_target, target))
        return;
    depart();
    Q_EMIT targetChanged();
}

void Glide::setSprings(bool springs) {
    if (assignIfChanged(m_springs, springs))
        Q_EMIT springsChanged();
}

void Glide::setTiming(const SpringTiming& timing) {
    if (assignIfChanged(m_timing, timing))
        Q_EMIT timingChanged();
}

void Glide::componentComplete() {
    QQuickItem::componentComplete();
    setValue(m_target);
}

void Glide::depart() {
    m_nextStep.stop();
    if (!m_springs || !window() || !isComponentComplete()) {
        setValue(m_target);
        return;
    }
    m_way = m_timing;
    m_start = m_value;
    m_departure = Clock::now();
    // It ends where no more of it can be seen, long before the spring is at rest.
    constexpr int parts = 32;
    int part = parts;
    const auto rest = [&](int at) {
        return (m_way.easing.valueForProgress(static_cast<double>(at) / parts) - 1) *
               (m_target - m_start);
    };
    while (part > 0 && inPixels(m_target + rest(part - 1)) == inPixels(m_target))
        --part;
    m_duration = std::chrono::milliseconds(m_way.duration) * part / parts;
    m_nextStep.start(untilNextStep(*window()));
}

void Glide::step() {
    const auto elapsed = Clock::now() - m_departure;
    if (elapsed >= m_duration || !window()) {
        setValue(m_target);
        return;
    }
    const double progress =
        std::chrono::duration<double, std::milli>(elapsed).count() / m_way.duration;
    setValue(std::lerp(m_start, m_target, m_way.easing.valueForProgress(progress)));
    m_nextStep.start(untilNextStep(*window()));
}

void Glide::setValue(double value) {
    if (assignIfChanged(m_value, inPixels(value)))
        Q_EMIT valueChanged();
}

double Glide::inPixels(double value) const {
    const double scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    return std::round(value * scale) / scale;
}

} // namespace kestrowind
