#include "UI/MenuBar/Linux/TrayStatusItem.h"

#include "Core/Logging.h"
#include "Platform/Notifications.h"

namespace kestrowind {

std::unique_ptr<StatusItem> makeStatusItem() {
    return std::make_unique<TrayStatusItem>();
}

TrayStatusItem::TrayStatusItem(SystemTrayWatch::Look isTrayThere)
    : m_watch(std::move(isTrayThere)) {
    connect(&m_watch, &SystemTrayWatch::found, this, &TrayStatusItem::show);
    connect(&m_watch, &SystemTrayWatch::missing, this,
            [] { qCInfo(shellLog) << "this desktop has no system tray for the menu-bar extra"; });
}

TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::show() {
    m_icon = std::make_unique<QSystemTrayIcon>(this);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, &TrayStatusItem::activated);
    connect(m_icon.get(), &QSystemTrayIcon::messageClicked, this, &TrayStatusItem::messageClicked);
    Q_EMIT placed();
    m_icon->show();
}

void TrayStatusItem::setCommands(const QList<Command>& commands) {
    m_menu = std::make_unique<QMenu>();
    for (const Command& command : commands) {
        m_menu->addAction(command.title, this, command.run);
        if (&command != &commands.back())
            m_menu->addSeparator();
    }
    m_icon->setContextMenu(m_menu.get());
}

void TrayStatusItem::setPicture(const QIcon& picture, const QString& toolTip) {
    m_icon->setIcon(picture);
    m_icon->setToolTip(toolTip);
}

void TrayStatusItem::showMessage(const kestrowind::Notification& message) {
    if (m_icon)
        m_icon->showMessage(message.title, message.body, m_icon->icon());
}

void TrayStatusItem::activated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Context)
        Q_EMIT menuRequested();
    else if (reason == QSystemTrayIcon::Trigger)
        Q_EMIT clicked();
}

} // namespace kestrowind
