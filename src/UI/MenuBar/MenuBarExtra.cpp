#include "UI/MenuBar/MenuBarExtra.h"

#include "Core/AppState.h"
#include "Core/LocalizedText.h"
#include "Core/Logging.h"
#include "Platform/Notifications.h"
#include "UI/MenuBar/MenuBarPanel.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QPalette>
#include <QScreen>

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// A Mac's menu bar takes pictures as wide as their text and colours them itself; its items have no
/// context menu beside what a click opens.
bool hasMenuBar() {
    return QGuiApplication::platformName() == "cocoa"_L1;
}

double sharpestScale() {
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.isEmpty())
        return 2.0;
    double scale = 0;
    for (const QScreen* screen : screens)
        scale = std::max(scale, screen->devicePixelRatio());
    return scale;
}

} // namespace

MenuBarExtra::MenuBarExtra(AppState& appState, SystemAppearance* appearance, QObject* parent)
    : QObject(parent)
    , m_appState(appState)
    , m_appearance(appearance)
    , m_icon(hasMenuBar() ? MenuBarIcon::Style::templateLabel : MenuBarIcon::Style::square) {
    connect(&m_trayWatch, &SystemTrayWatch::found, this, &MenuBarExtra::showIcon);
    connect(&m_trayWatch, &SystemTrayWatch::missing, this,
            [] { qCInfo(shellLog) << "this desktop has no system tray for the menu-bar extra"; });
    m_trayWatch.start();
}

MenuBarExtra::~MenuBarExtra() = default;

void MenuBarExtra::showIcon() {
    if (m_trayIcon)
        return;
    m_panel = std::make_unique<MenuBarPanel>(m_appState, m_appearance);
    connect(m_panel.get(), &MenuBarPanel::quitRequested, this, &MenuBarExtra::quitRequested);
    connect(m_panel.get(), &MenuBarPanel::released, this, &MenuBarExtra::panelReleased);
    m_trayIcon = std::make_unique<QSystemTrayIcon>();
    connect(m_trayIcon.get(), &QSystemTrayIcon::activated, this, &MenuBarExtra::activated);
    connect(m_trayIcon.get(), &QSystemTrayIcon::messageClicked, this,
            &MenuBarExtra::openMainWindowRequested);
    if (!hasMenuBar()) {
        m_contextMenu = makeContextMenu();
        m_trayIcon->setContextMenu(m_contextMenu.get());
    }

    m_appState.telemetry().onSample(this, [this](const TelemetrySample&) { updateIcon(); });
    if (m_appearance)
        connect(m_appearance, &SystemAppearance::colorSchemeChanged, this,
                &MenuBarExtra::updateIcon);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &MenuBarExtra::updateIcon);
    // The screen that goes is among the screens until its removal is over.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &MenuBarExtra::updateIcon,
            Qt::QueuedConnection);
    updateIcon();
    m_trayIcon->show();

    m_appState.setOpenMainWindow([this] { Q_EMIT openMainWindowRequested(); });
    Q_EMIT availableChanged();
}

void MenuBarExtra::showMessage(const Notification& notification) {
    if (m_trayIcon)
        m_trayIcon->showMessage(notification.title, notification.body, m_icon.icon());
}

void MenuBarExtra::updateIcon() {
    const MenuBarReading reading = MenuBarReading::of(m_appState.telemetry());
    if (!m_icon.update(reading, sharpestScale(), colorScheme()))
        return;
    m_trayIcon->setIcon(m_icon.icon());
    m_trayIcon->setToolTip(reading.temperatureText() + u'\n' + reading.fanText());
}

ColorScheme MenuBarExtra::colorScheme() const {
    if (m_appearance) {
        if (const auto scheme = m_appearance->colorScheme())
            return *scheme;
    }
    // Most desktops have dark panels.
    return ColorScheme::dark;
}

void MenuBarExtra::activated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Context) {
        m_panel->close();
        return;
    }
    if (reason != QSystemTrayIcon::Trigger)
        return;
    // Trays on the bus do not say where they have put the icon; the click does.
    const QRect icon = m_trayIcon->geometry();
    m_panel->toggle(icon.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : icon);
}

std::unique_ptr<QMenu> MenuBarExtra::makeContextMenu() {
    auto menu = std::make_unique<QMenu>();
    menu->addAction(localized("menuBar.openApplicationButton"), this,
                    &MenuBarExtra::openMainWindowRequested);
    menu->addSeparator();
    menu->addAction(localized("menuBar.quitButton"), this, &MenuBarExtra::quitRequested);
    return menu;
}

} // namespace kestrowind
