#pragma once

#include "Core/AlertNotifier.h"
#include "Platform/Notifications.h"
#include "Platform/SystemAppearance.h"
#include "UI/FileDialogs/WidgetFileDialogs.h"
#include "UI/MainWindow/MainWindowScene.h"
#include "UI/MenuBar/MenuBarExtra.h"
#include "UI/Settings/HelperOperation.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace kestrowind {

class AppState;
struct Platform;

/// How the scenes are made; tests make them otherwise.
struct ScenesSetup {
    StatusItemFactory statusItem = &makeStatusItem;
    /// How long a hidden start waits for a tray, which may come up later than we do at login.
    std::chrono::milliseconds trayWait = std::chrono::seconds(5);
    std::chrono::milliseconds windowRelease = MainWindowScene::defaultReleaseDelay;
    MenuBarPanelSetup panel = {};
};

/// The application's two scenes, the main window and the menu-bar extra, and how they lead to each
/// other. Needs a QApplication; belongs to the main thread.
class Scenes final : public QObject {
    Q_OBJECT

public:
    /// State and platform must outlive the scenes.
    Scenes(AppState& appState, Platform& platform, const ScenesSetup& setup = {});
    ~Scenes() override;

    /// Presents the status item and the main window; for a quiet start, which the launch option
    /// "StartHidden" asks for as well, the window only where no tray comes up.
    void present(bool isQuiet);

Q_SIGNALS:
    void quitRequested();

private:
    std::unique_ptr<SystemAppearance> m_systemAppearance;
    bool m_startsHidden;
    std::unique_ptr<Notifications> m_notifications;
    AlertNotifier m_alertNotifier;
    WidgetFileDialogs m_fileDialogs;
    HelperOperation m_helperOperation;
    MainWindowScene m_mainWindow;
    std::unique_ptr<StatusItem> m_statusItem;
    MenuBarExtra m_menuBarExtra;
    std::chrono::milliseconds m_trayWait;
};

} // namespace kestrowind
