#include "UI/DesignSystem/FrameClock.h"

#include "UI/DesignSystem/FrameGrid.h"

#include <QQuickWindow>

#include <algorithm>

namespace kestrowind {
namespace {

/// No frame may move anything by more points than this, where there are frames enough.
constexpr double smoothStep = 2.5;
/// 20 frames a second; with fewer even the slowest fan is seen to jump.
constexpr int longestBeat = 3;

} // namespace

FrameClock& FrameClock::of(QQuickWindow& window) {
    if (auto* existing = window.findChild<FrameClock*>(QString(), Qt::FindDirectChildrenOnly))
        return *existing;
    return *new FrameClock(window);
}

FrameClock::FrameClock(QQuickWindow& window)
    : QObject(&window)
    , m_window(window) {
    m_nextFrame.setSingleShot(true);
    m_nextFrame.setTimerType(Qt::PreciseTimer);
    connect(&m_nextFrame, &QTimer::timeout, this, [this] {
        m_window.update();
        await();
    });
}

void FrameClock::setSpeed(const QObject& mover, double pointsPerSecond) {
    if (pointsPerSecond > 0)
        m_speeds.insert(&mover, pointsPerSecond);
    else
        m_speeds.remove(&mover);
    if (m_speeds.isEmpty())
        m_nextFrame.stop();
    else if (!m_nextFrame.isActive())
        await();
}

void FrameClock::await() {
    const double fastest = *std::max_element(m_speeds.cbegin(), m_speeds.cend());
    int beat = longestBeat;
    while (beat > FrameGrid::shortestBeat(m_window) &&
           fastest * FrameGrid::seconds(beat) > smoothStep)
        --beat;
    m_nextFrame.start(FrameGrid::untilNext(beat));
}

} // namespace kestrowind
