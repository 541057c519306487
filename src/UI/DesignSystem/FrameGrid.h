#pragma once

#include <chrono>

class QQuickWindow;

/// The instants at which what moves by itself asks for frames: 60 a second, the same for
/// everything, so that all of it shares its frames. Nobody asks at each of them where a beat of
/// several will do.
namespace kestrowind::FrameGrid {

/// Of so many instants no more than one: two where the processor draws, since each frame takes its
/// time from the rest of the machine, else one.
[[nodiscard]] int shortestBeat(const QQuickWindow& window);

/// Until the next instant of that beat, rounded up.
[[nodiscard]] std::chrono::milliseconds untilNext(int beat);

/// How much of a second a beat takes.
[[nodiscard]] double seconds(int beat);

} // namespace kestrowind::FrameGrid
