#pragma once

#include "UI/MainWindow/MainWindowController.h"
#include "UI/MainWindow/MainWindowHeightController.h"
#include "UI/MainWindow/MainWindowModel.h"
#include "UI/MainWindow/MainWindowVisibility.h"
#include "UI/MainWindow/SectionView.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>

#include <optional>
#include <vector>

class QQuickView;

namespace kestrowind {

class LateScene;
class SectionHost;

/// What the main window looks like, so far as it outlives the window.
struct MainWindowState {
    MainSection section = MainSection::dashboard;
    std::optional<QPoint> framePosition = {}; ///< absent until the window has stood somewhere
    QSize size = {};
    bool isMaximized = false;
};

/// What the window is made with; all of it outlives the window.
struct MainWindowServices {
    AppState& appState;
    const UserDefaults& userDefaults;
    ActivationPolicy& activationPolicy;
    std::vector<SectionView> sectionViews; ///< a section without a view shows its title
};

/// What fills the scene's window and moves it: the frame, and the section that is on screen. It
/// goes after the window.
class MainWindow final : public QObject {
    Q_OBJECT

public:
    MainWindow(LateScene& scene, const MainWindowServices& services,
               MainWindowVisibility& visibility, const MainWindowState& state);
    ~MainWindow() override;

    [[nodiscard]] MainWindowState state() const;

    void show();
    /// Widens a window that opened too narrow.
    void openAtComfortableWidth();

Q_SIGNALS:
    void quitRequested();

private:
    void restore(const MainWindowState& state);
    void buildView(LateScene& scene);
    void updateSection();
    void showSection(MainSection section);

    const MainWindowServices& m_services;
    MainWindowVisibility& m_visibility;
    QQuickView& m_window;
    MainWindowModel m_model;
    MainWindowController m_controller;
    MainWindowHeightController m_heightController;
    QPointer<SectionHost> m_sectionHost;
};

} // namespace kestrowind
