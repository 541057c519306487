#include "UI/DesignSystem/FrameGrid.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

namespace kestrowind::FrameGrid {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr Clock::duration interval = 16666us;

/// A frame of a 60 Hz screen may come this much early; waiting for a timer then would drop it.
constexpr auto frameTolerance = 1ms;

} // namespace

int shortestBeat(const QQuickWindow& window) {
    return window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software ? 2 : 1;
}

std::chrono::milliseconds untilNext(int beat) {
    const Clock::duration now = Clock::now().time_since_epoch() + frameTolerance;
    const Clock::duration step = beat * interval;
    return std::chrono::ceil<std::chrono::milliseconds>(step - now % step);
}

double seconds(int beat) {
    return std::chrono::duration<double>(beat * interval).count();
}

} // namespace kestrowind::FrameGrid
