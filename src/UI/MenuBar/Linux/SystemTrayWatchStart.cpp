#include "UI/MenuBar/SystemTrayWatch.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QGuiApplication>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

// The bus name under which desktops take icons in (freedesktop.org, StatusNotifierItem).
constexpr auto watcherName = "org.kde.StatusNotifierWatcher"_L1;

} // namespace

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

} // namespace kestrowind
