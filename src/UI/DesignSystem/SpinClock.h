#pragma once

#include <chrono>
#include <cmath>

namespace kestrowind {

/// Where something that turns stands at a time. A change of speed keeps the angle.
class SpinClock {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    [[nodiscard]] double revolutionsPerSecond() const { return m_revolutionsPerSecond; }

    /// Negative speeds stand still, and so does what is no number.
    void setSpeed(double revolutionsPerSecond, TimePoint now) {
        m_turns = turns(now);
        m_since = now;
        m_revolutionsPerSecond = revolutionsPerSecond > 0 ? revolutionsPerSecond : 0;
    }

    /// Clockwise turns since the start, less the whole ones: 0 up to 1.
    [[nodiscard]] double turns(TimePoint now) const {
        const double elapsed = std::chrono::duration<double>(now - m_since).count();
        const double turns = m_turns + m_revolutionsPerSecond * elapsed;
        return turns - std::floor(turns);
    }

private:
    double m_revolutionsPerSecond = 0;
    double m_turns = 0;
    TimePoint m_since = {};
};

} // namespace kestrowind
