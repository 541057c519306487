#include "UI/MainWindow/MainWindowController.h"

#include "Platform/ActivationPolicy.h"
#include "Platform/UserDefaults.h"
#include "UI/MainWindow/MainWindowVisibility.h"

#include <QEvent>
#include <QWindow>

namespace kestrowind {

using namespace Qt::StringLiterals;

MainWindowController::MainWindowController(QWindow& window, MainWindowVisibility& visibility,
                                           const UserDefaults& userDefaults,
                                           ActivationPolicy& activationPolicy)
    : m_window(window)
    , m_visibility(visibility)
    , m_userDefaults(userDefaults)
    , m_activationPolicy(activationPolicy) {
    window.installEventFilter(this);
    connect(&window, &QWindow::windowStateChanged, this,
            &MainWindowController::windowOnScreenStateChanged);
}

void MainWindowController::show() {
    m_activationPolicy.setPolicy(ActivationPolicy::Policy::regular);
    m_window.setVisible(true);
    m_window.setWindowStates(m_window.windowStates() & ~Qt::WindowMinimized);
    m_visibility.setOnScreen(true);
    m_window.raise();
    m_window.requestActivate();
    m_activationPolicy.activate();
}

bool MainWindowController::windowShouldClose() {
    m_window.setVisible(false);
    m_visibility.setOnScreen(false);
    if (m_userDefaults.boolean(u"hideDockIconWhenWindowClosed"_s))
        m_activationPolicy.setPolicy(ActivationPolicy::Policy::accessory);
    Q_EMIT closed();
    return false;
}

bool MainWindowController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_window && event->type() == QEvent::Close) {
        event->setAccepted(windowShouldClose());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void MainWindowController::windowOnScreenStateChanged() {
    m_visibility.setOnScreen(m_window.isVisible() &&
                             !m_window.windowStates().testFlag(Qt::WindowMinimized));
}

} // namespace kestrowind
