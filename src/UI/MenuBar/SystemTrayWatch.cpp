#include "UI/MenuBar/SystemTrayWatch.h"

#include <array>

namespace kestrowind {

using namespace std::chrono_literals;

SystemTrayWatch::SystemTrayWatch(Look isTrayThere)
    : m_isTrayThere(std::move(isTrayThere)) {
    m_nextLook.setSingleShot(true);
    connect(&m_nextLook, &QTimer::timeout, this, &SystemTrayWatch::look);
}

SystemTrayWatch::~SystemTrayWatch() = default;

void SystemTrayWatch::lookNow() {
    if (m_nextLook.isActive())
        look();
}

void SystemTrayWatch::look() {
    static constexpr std::array<std::chrono::milliseconds, 4> waits = {firstWait, 5000ms, 15000ms,
                                                                       30000ms};
    if (m_isTrayThere()) {
        m_nextLook.stop();
        if (m_watcher)
            m_watcher.release()->deleteLater();
        Q_EMIT found();
        return;
    }
    if (!m_isMissing) {
        m_isMissing = true;
        Q_EMIT missing();
    }
    if (m_looks < static_cast<int>(waits.size()))
        m_nextLook.start(waits[static_cast<std::size_t>(m_looks++)]);
}

} // namespace kestrowind
