#include "UI/MenuBar/Linux/SystemTrayWatch.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QGuiApplication>

#include <array>

namespace kestrowind {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// The bus name under which desktops take icons in (freedesktop.org, StatusNotifierItem).
constexpr auto watcherName = "org.kde.StatusNotifierWatcher"_L1;

} // namespace

SystemTrayWatch::SystemTrayWatch(Look isTrayThere)
    : m_isTrayThere(std::move(isTrayThere)) {
    m_nextLook.setSingleShot(true);
    connect(&m_nextLook, &QTimer::timeout, this, &SystemTrayWatch::look);
}

SystemTrayWatch::~SystemTrayWatch() = default;

// The toolkit decides between the bus and X11's own trays when it is first asked, and never again:
// a desktop that is still starting gets a moment before that question.
void SystemTrayWatch::start() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        look();
        return;
    }
    const bool isRegistered = bus.interface()->isServiceRegistered(watcherName);
    if (isRegistered) {
        look();
        return;
    }
    auto watcher = std::make_unique<QDBusServiceWatcher>(watcherName, bus,
                                                         QDBusServiceWatcher::WatchForRegistration);
    connect(watcher.get(), &QDBusServiceWatcher::serviceRegistered, this, &SystemTrayWatch::look);
    m_watcher = std::move(watcher);
    // On Wayland only the bus leads to a tray.
    if (QGuiApplication::platformName().startsWith("wayland"_L1)) {
        m_isMissing = true;
        Q_EMIT missing();
    } else {
        m_nextLook.start(firstWait);
    }
}

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
