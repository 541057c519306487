#pragma once

#include "UI/DesignSystem/LateScene.h"
#include "UI/MainWindow/MainWindow.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace kestrowind {

/// The main window as the application knows it. It can be shown at any time; closed, it is hidden,
/// and some moments later everything that it is made of is freed. Showing it again makes it anew as
/// it was. Belongs to the main thread.
///
/// The application must not end with its last window (QGuiApplication::setQuitOnLastWindowClosed).
class MainWindowScene final : public QObject {
    Q_OBJECT

public:
    /// How long a hidden window is kept, for users who want it back at once.
    static constexpr std::chrono::milliseconds defaultReleaseDelay{5000};

    /// The appearance may be absent.
    MainWindowScene(MainWindowServices services, SystemAppearance* systemAppearance,
                    std::chrono::milliseconds releaseDelay = defaultReleaseDelay);
    ~MainWindowScene() override;

    /// Shows the window in front of everything.
    void show();

    /// Absent while nothing of the window exists.
    [[nodiscard]] QQuickView* window() const { return m_scene.view(); }

Q_SIGNALS:
    void quitRequested();
    /// What the hidden window was made of is gone.
    void released();

private:
    void closeLaterIfRequested();

    MainWindowServices m_services;
    MainWindowVisibility m_visibility;
    MainWindowState m_state;
    bool m_wasShown = false;
    std::unique_ptr<MainWindow> m_mainWindow;
    LateScene m_scene; ///< goes before what its window relies on
};

} // namespace kestrowind
