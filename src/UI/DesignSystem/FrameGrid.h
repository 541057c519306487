#pragma once

#include <chrono>
#include <cstdint>

class QQuickWindow;

/// The instants at which what moves by itself asks for frames. They are the same for everything in
/// a window, so that all of it shares its frames: at most 60 a second, on screens that refresh
/// faster too; half of it where the processor draws, and each frame takes its time from the rest of
/// the machine.
namespace kestrowind::FrameGrid {

/// The number of the instant that it is now.
[[nodiscard]] std::int64_t tick(const QQuickWindow& window);
/// Rounded up. `every` counts ticks: 2 is for each second one.
[[nodiscard]] std::chrono::milliseconds untilNextTick(const QQuickWindow& window, int every = 1);

} // namespace kestrowind::FrameGrid
