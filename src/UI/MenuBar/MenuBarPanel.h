#pragma once

#include "UI/DesignSystem/DesktopCompositing.h"
#include "UI/DesignSystem/LateScene.h"
#include "UI/MenuBar/MenuBarModel.h"
#include "UI/MenuBar/PanelWindow.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QRect>

#include <chrono>

namespace kestrowind {

struct MenuBarPanelSetup {
    /// Someone who opens the panel again and again finds it ready.
    std::chrono::milliseconds releaseDelay = std::chrono::seconds(10);
    /// The click on the icon that took the focus away, and so closed the panel, arrives after the
    /// fact and does not open it anew.
    std::chrono::milliseconds sameClick{300};
    /// Whether the desktop can show through a window, asked anew for each scene.
    bool (*isComposited)() = &isDesktopComposited;
};

/// The panel that opens at the menu-bar item and closes when the user turns to anything else.
class MenuBarPanel final : public QObject {
    Q_OBJECT

public:
    /// The appearance may be absent; it must outlive the panel, as must the state.
    MenuBarPanel(AppState& appState, SystemAppearance* appearance, MenuBarPanelSetup setup = {});

    /// Opens or closes, as a click on the icon does. `icon` is where that is on the desktop.
    void toggle(const QRect& icon);
    void open(const QRect& icon);
    void close();

    [[nodiscard]] bool isOpen() const { return view() && view()->isVisible(); }
    /// Absent while there is no scene.
    [[nodiscard]] QQuickView* view() const { return m_scene.view(); }

Q_SIGNALS:
    void quitRequested();
    /// What the closed panel was made of is gone.
    void released();

private:
    void makeView();
    void place();
    void closeFromOutside();
    [[nodiscard]] QColor background(ColorScheme scheme) const;

    MenuBarPanelSetup m_setup;
    MenuBarModel m_model;
    QRect m_icon;
    bool m_isComposited = true; ///< the desktop, when the scene was made
    bool m_wasActive = false;
    QElapsedTimer m_sinceClosedFromOutside;
    QPointer<PanelWindow> m_window; ///< goes with the view
    LateScene m_scene;              ///< goes before the model that it shows
};

} // namespace kestrowind
