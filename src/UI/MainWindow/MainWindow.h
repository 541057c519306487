#pragma once

#include "UI/MainWindow/MainWindowController.h"
#include "UI/MainWindow/MainWindowHeightController.h"
#include "UI/MainWindow/MainWindowModel.h"
#include "UI/MainWindow/MainWindowVisibility.h"
#include "UI/MainWindow/SectionView.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSize>

#include <optional>
#include <vector>

namespace kestrowind {

class SectionHost;
class SystemAppearance;

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
    SystemAppearance* systemAppearance = nullptr;
    MainWindowVisibility& visibility;
    const std::vector<SectionView>& sectionViews;
};

/// The window while it exists: its engine, its frame, and the section that is on screen.
class MainWindow final : public QObject {
    Q_OBJECT

public:
    MainWindow(const MainWindowServices& services, const MainWindowState& state);
    ~MainWindow() override;

    [[nodiscard]] QQuickWindow& window() { return m_window; }
    [[nodiscard]] MainWindowController& controller() { return m_controller; }
    [[nodiscard]] MainWindowModel& model() { return m_model; }
    [[nodiscard]] MainWindowState state() const;

    void show();
    /// Widens a window that opened too narrow.
    void openAtComfortableWidth();

private:
    void restore(const MainWindowState& state);
    void buildView();
    void updateAppearance();
    void updateSection();
    void showSection(MainSection section);

    MainWindowServices m_services;
    // The window and what is in it go before the models and the engine that they rely on.
    QQmlEngine m_engine;
    MainWindowModel m_model;
    QQuickWindow m_window;
    MainWindowController m_controller;
    MainWindowHeightController m_heightController;
    QPointer<SectionHost> m_sectionHost;
};

} // namespace kestrowind
