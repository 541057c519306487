#pragma once

#include "UI/MenuBar/Linux/SystemTrayWatch.h"
#include "UI/MenuBar/StatusItem.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace kestrowind {

/// The toolkit's tray icon, made once there is a tray: a status-notifier host or an XEmbed tray.
class TrayStatusItem final : public StatusItem {
    Q_OBJECT

public:
    explicit TrayStatusItem(
        SystemTrayWatch::Look isTrayThere = &QSystemTrayIcon::isSystemTrayAvailable);
    ~TrayStatusItem() override;

    void start() override { m_watch.start(); }
    void lookNow() override { m_watch.lookNow(); }
    [[nodiscard]] bool isPlaced() const override { return m_icon != nullptr; }
    [[nodiscard]] Style style() const override { return Style::square; }
    [[nodiscard]] QRect geometry() const override { return m_icon->geometry(); }
    void setCommands(const QList<Command>& commands) override;
    void setPicture(const QIcon& picture, const QString& toolTip) override;
    void showMessage(const kestrowind::Notification& message) override;

private:
    void show();
    void activated(QSystemTrayIcon::ActivationReason reason);

    SystemTrayWatch m_watch;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};

} // namespace kestrowind
