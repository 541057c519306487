#include "UI/DesignSystem/FrameGrid.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

namespace kestrowind::FrameGrid {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// A frame of a 60 Hz screen may come this much early; waiting for a timer then would drop it.
constexpr auto frameTolerance = 1ms;

Clock::duration interval(const QQuickWindow& window) {
    const bool isDrawnByProcessor =
        window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    return isDrawnByProcessor ? 33333us : 16666us;
}

Clock::duration now() {
    return Clock::now().time_since_epoch() + frameTolerance;
}

} // namespace

std::int64_t tick(const QQuickWindow& window) {
    return now() / interval(window);
}

std::chrono::milliseconds untilNextTick(const QQuickWindow& window, int every) {
    const Clock::duration step = every * interval(window);
    return std::chrono::ceil<std::chrono::milliseconds>(step - now() % step);
}

} // namespace kestrowind::FrameGrid
