#pragma once

#include "UI/MainWindow/MainWindow.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <vector>

namespace kestrowind {

/// The main window as the application knows it. It can be shown at any time; closed, it is hidden,
/// and some moments later everything that it is made of is freed. Showing it again makes it anew as
/// it was. Belongs to the main thread; what it is given must outlive it.
///
/// The application must not end with its last window (QGuiApplication::setQuitOnLastWindowClosed).
class MainWindowScene final : public QObject {
    Q_OBJECT

public:
    /// How long a hidden window is kept, for users who want it back at once.
    static constexpr std::chrono::milliseconds releaseDelay{5000};

    MainWindowScene(AppState& appState, UserDefaults& userDefaults,
                    ActivationPolicy& activationPolicy, SystemAppearance* systemAppearance);
    ~MainWindowScene() override;

    /// To be called before the window is first shown. A section without a view shows its title.
    void setSectionViews(std::vector<SectionView> sectionViews);
    void setReleaseDelay(std::chrono::milliseconds delay) { m_release.setInterval(delay); }

    /// Shows the window in front of everything.
    void show();
    /// Selects the section, now or for when the window is shown.
    void selectSection(MainSection section);
    /// Hides the window as its close button does; nothing when it is hidden already.
    void close();

    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] const MainWindowVisibility& visibility() const { return m_visibility; }
    /// Absent while nothing of the window exists.
    [[nodiscard]] QQuickWindow* window() const;

Q_SIGNALS:
    void closed();
    void quitRequested();
    /// What the hidden window was made of is gone.
    void released();

private:
    void makeWindow();
    void release();
    void closeLaterIfRequested();

    AppState& m_appState;
    UserDefaults& m_userDefaults;
    ActivationPolicy& m_activationPolicy;
    SystemAppearance* m_systemAppearance;
    std::vector<SectionView> m_sectionViews;
    MainWindowVisibility m_visibility;
    MainWindowState m_state;
    bool m_wasShown = false;
    QTimer m_release;
    std::unique_ptr<MainWindow> m_mainWindow;
};

} // namespace kestrowind
