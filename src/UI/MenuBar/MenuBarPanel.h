#pragma once

#include "UI/MenuBar/MenuBarModel.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickView>
#include <QRect>
#include <QTimer>

#include <chrono>
#include <memory>

namespace kestrowind {

class SystemAppearance;

/// The panel that opens at the menu-bar item and closes when the user turns to anything else. Its
/// scene is made when it is first opened and given back some time after it was closed.
class MenuBarPanel final : public QObject {
    Q_OBJECT

public:
    struct Timing {
        /// Someone who opens the panel again and again finds it ready.
        std::chrono::milliseconds releaseDelay = std::chrono::seconds(10);
        /// The click on the icon that took the focus away, and so closed the panel, arrives after
        /// the fact and does not open it anew.
        std::chrono::milliseconds sameClick{300};
    };

    /// The appearance may be absent; it must outlive the panel, as must the state.
    MenuBarPanel(AppState& appState, SystemAppearance* appearance);
    MenuBarPanel(AppState& appState, SystemAppearance* appearance, Timing timing);
    ~MenuBarPanel() override;

    /// Opens or closes, as a click on the icon does. `icon` is where that is on the desktop.
    void toggle(const QRect& icon);
    void open(const QRect& icon);
    void close();

    [[nodiscard]] bool isOpen() const { return m_view && m_view->isVisible(); }
    /// Absent while there is no scene.
    [[nodiscard]] QQuickView* view() const { return m_view.get(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void quitRequested();
    /// What the closed panel was made of is gone.
    void released();

private:
    [[nodiscard]] bool makeScene();
    void releaseScene();
    void place();
    void shape();
    void updateBackground();
    void closeFromOutside();

    SystemAppearance* m_appearance;
    Timing m_timing;
    MenuBarModel m_model;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickView> m_view;
    QRect m_icon;
    bool m_isComposited = true; ///< the desktop, when the scene was made
    bool m_wasActive = false;
    QElapsedTimer m_sinceClosedFromOutside;
    QTimer m_releaseTimer;
};

} // namespace kestrowind
