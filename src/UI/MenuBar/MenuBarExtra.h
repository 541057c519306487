#pragma once

#include "Platform/SystemAppearance.h"
#include "UI/MenuBar/MenuBarIcon.h"
#include "UI/MenuBar/SystemTrayWatch.h"

#include <QObject>
#include <QSystemTrayIcon>

#include <memory>

class QMenu;

namespace kestrowind {

class AppState;
class MenuBarPanel;
struct Notification;

/// The application's permanent presence on the desktop: the reading in the menu bar or tray and
/// the panel behind it. Needs a QApplication. Where there is no tray it waits for one.
class MenuBarExtra final : public QObject {
    Q_OBJECT

public:
    /// The state and the appearance, which may be absent, must outlive the extra.
    MenuBarExtra(AppState& appState, SystemAppearance* appearance, QObject* parent = nullptr);
    ~MenuBarExtra() override;

    /// Whether the icon is shown.
    [[nodiscard]] bool isAvailable() const { return m_trayIcon != nullptr; }
    /// Looks for a tray that has come since the last look, for who cannot wait for the next.
    void lookForTray() { m_trayWatch.lookNow(); }
    /// A balloon beside the icon, for a desktop that shows no notifications; nothing without a
    /// tray.
    void showMessage(const Notification& notification);

Q_SIGNALS:
    /// A tray appeared; the icon is shown from now on.
    void availableChanged();
    void openMainWindowRequested();
    void quitRequested();
    /// What the closed panel was made of is gone.
    void panelReleased();

private:
    void showIcon();
    void updateIcon();
    void activated(QSystemTrayIcon::ActivationReason reason);
    [[nodiscard]] std::unique_ptr<QMenu> makeContextMenu();
    [[nodiscard]] ColorScheme colorScheme() const;

    AppState& m_appState;
    SystemAppearance* m_appearance;
    SystemTrayWatch m_trayWatch;
    MenuBarIcon m_icon;
    // In the order of their making.
    std::unique_ptr<MenuBarPanel> m_panel;
    std::unique_ptr<QMenu> m_contextMenu;
    std::unique_ptr<QSystemTrayIcon> m_trayIcon;
};

} // namespace kestrowind
