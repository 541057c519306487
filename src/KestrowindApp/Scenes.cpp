#include "KestrowindApp/Scenes.h"

#include "Core/AppState.h"
#include "Platform/Platform.h"
#include "UI/Curves/CurveEditHistory.h"
#include "UI/Curves/CurvesModel.h"
#include "UI/Dashboard/DashboardModel.h"
#include "UI/Presets/PresetsModel.h"
#include "UI/Settings/SettingsModel.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

std::vector<SectionView> sectionViews(AppState& appState, Platform& platform,
                                      FileDialogs& fileDialogs, HelperOperation& helperOperation) {
    // Outlives the section, which is there only while it can be seen.
    const auto curveEdits = std::make_shared<CurveEditHistory>();
    return {
        {.section = MainSection::dashboard,
         .qmlUrl = QUrl(u"qrc:/qt/qml/Kestrowind/Dashboard/DashboardRootView.qml"_s),
         .makeModel = [&] { return std::make_unique<DashboardModel>(appState, fileDialogs); }},
        {.section = MainSection::curves,
         .qmlUrl = QUrl(u"qrc:/qt/qml/Kestrowind/Curves/CurvesRootView.qml"_s),
         .makeModel =
             [&appState, curveEdits] {
                 return std::make_unique<CurvesModel>(appState, *curveEdits);
             }},
        {.section = MainSection::presets,
         .qmlUrl = QUrl(u"qrc:/qt/qml/Kestrowind/Presets/PresetsRootView.qml"_s),
         .makeModel = [&] { return std::make_unique<PresetsModel>(appState, fileDialogs); }},
        {.section = MainSection::settings,
         .qmlUrl = QUrl(u"qrc:/qt/qml/Kestrowind/Settings/SettingsRootView.qml"_s),
         .makeModel =
             [&appState, &platform, &helperOperation] {
                 return std::make_unique<SettingsModel>(
                     SettingsServices{.helper = appState.helper(),
                                      .control = appState.control(),
                                      .helperOperation = helperOperation,
                                      .userDefaults = *platform.userDefaults,
                                      .loginItem = *platform.loginItem,
                                      .information = *platform.information});
             }},
    };
}

} // namespace

Scenes::Scenes(AppState& appState, Platform& platform, const ScenesSetup& setup)
    : m_systemAppearance(platform.systemAppearance())
    , m_startsHidden(platform.userDefaults->boolean(u"StartHidden"_s))
    , m_notifications(platform.notifications())
    , m_alertNotifier(appState, *platform.userDefaults, *m_notifications)
    , m_helperOperation(appState.helper())
    , m_mainWindow(
          {.appState = appState,
           .userDefaults = *platform.userDefaults,
           .activationPolicy = *platform.activationPolicy,
           .sectionViews = sectionViews(appState, platform, m_fileDialogs, m_helperOperation)},
          m_systemAppearance.get(), setup.windowRelease)
    , m_statusItem(setup.statusItem())
    , m_menuBarExtra(appState, m_systemAppearance.get(), *m_statusItem, setup.panel)
    , m_trayWait(setup.trayWait) {
    // Closing the window hides it; the application lives on in the menu bar.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);

    appState.setOpenMainWindow([this] { m_mainWindow.show(); });
    connect(&m_menuBarExtra, &MenuBarExtra::openMainWindowRequested, &m_mainWindow,
            &MainWindowScene::show);
    connect(&m_menuBarExtra, &MenuBarExtra::quitRequested, this, &Scenes::quitRequested);
    connect(&m_mainWindow, &MainWindowScene::quitRequested, this, &Scenes::quitRequested);
    connect(&m_mainWindow, &MainWindowScene::released, this, platform.returnFreedMemory);
    connect(&m_menuBarExtra, &MenuBarExtra::panelReleased, this, platform.returnFreedMemory);

    connect(m_notifications.get(), &Notifications::activated, &m_mainWindow,
            &MainWindowScene::show);
    connect(m_notifications.get(), &Notifications::notShown, m_statusItem.get(),
            &StatusItem::showMessage);
    connect(m_statusItem.get(), &StatusItem::messageClicked, &m_mainWindow, &MainWindowScene::show);
}

Scenes::~Scenes() = default;

void Scenes::present(bool isQuiet) {
    m_statusItem->start();
    if (!m_startsHidden && !isQuiet) {
        m_mainWindow.show();
        return;
    }
    QTimer::singleShot(m_trayWait, this, [this] {
        m_statusItem->lookNow();
        if (!m_statusItem->isPlaced())
            m_mainWindow.show();
    });
}

} // namespace kestrowind
