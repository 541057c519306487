#include "Core/ControlWatch.h"

#include "Core/AssignIfChanged.h"

namespace kestrowind {

ControlWatch::ControlWatch(std::chrono::milliseconds patience) {
    m_patience.setSingleShot(true);
    m_patience.setTimerType(Qt::PreciseTimer);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        // Who asked for nothing meanwhile stood still itself: the answers may be waiting.
        if (m_sinceLastExpected.elapsed() < m_patience.interval())
            setIsDenied(true);
    });
}

void ControlWatch::expect() {
    m_sinceLastExpected.start();
    if (!m_isDenied && !m_patience.isActive())
        m_patience.start();
}

void ControlWatch::clear() {
    m_patience.stop();
    setIsDenied(false);
}

void ControlWatch::setIsDenied(bool isDenied) {
    if (assignIfChanged(m_isDenied, isDenied))
        Q_EMIT isDeniedChanged();
}

} // namespace kestrowind
