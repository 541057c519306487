#pragma once

#include "Platform/SystemAppearance.h"
#include "UI/MenuBar/MenuBarIcon.h"
#include "UI/MenuBar/MenuBarPanel.h"

#include <QObject>

namespace kestrowind {

/// The application's permanent presence on the desktop: the reading in the menu bar or tray, and
/// the panel behind it. Belongs to the main thread.
class MenuBarExtra final : public QObject {
    Q_OBJECT

public:
    /// All that it takes must outlive the extra; the appearance may be absent.
    MenuBarExtra(AppState& appState, SystemAppearance* appearance, StatusItem& statusItem,
                 MenuBarPanelSetup setup);

Q_SIGNALS:
    void openMainWindowRequested();
    void quitRequested();
    /// What the closed panel was made of is gone.
    void panelReleased();

private:
    void appear();
    void updateIcon();
    void clicked();
    [[nodiscard]] ColorScheme colorScheme() const;

    AppState& m_appState;
    SystemAppearance* m_appearance;
    StatusItem& m_statusItem;
    MenuBarIcon m_icon;
    MenuBarPanel m_panel;
};

} // namespace kestrowind
