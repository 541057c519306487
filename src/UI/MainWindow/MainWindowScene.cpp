#include "UI/MainWindow/MainWindowScene.h"

#include "Platform/UserDefaults.h"
#include "UI/MainWindow/MainWindowFrame.h"

#include <limits>

namespace kestrowind {

using namespace Qt::StringLiterals;

MainWindowScene::MainWindowScene(AppState& appState, UserDefaults& userDefaults,
                                 ActivationPolicy& activationPolicy,
                                 SystemAppearance* systemAppearance)
    : m_appState(appState)
    , m_userDefaults(userDefaults)
    , m_activationPolicy(activationPolicy)
    , m_systemAppearance(systemAppearance)
    , m_state{.section = sectionNamed(userDefaults.string(u"InitialSection"_s).value_or(QString())),
              .size = QSize(static_cast<int>(MainWindowFrame::comfortableWidth),
                            static_cast<int>(MainWindowFrame::defaultHeight))} {
    m_release.setSingleShot(true);
    m_release.setInterval(releaseDelay);
    connect(&m_release, &QTimer::timeout, this, &MainWindowScene::release);
}

MainWindowScene::~MainWindowScene() = default;

void MainWindowScene::setSectionViews(std::vector<SectionView> sectionViews) {
    m_sectionViews = std::move(sectionViews);
}

void MainWindowScene::show() {
    m_release.stop();
    if (!m_mainWindow)
        makeWindow();
    m_mainWindow->show();
    if (!m_wasShown) {
        m_wasShown = true;
        m_mainWindow->openAtComfortableWidth();
        closeLaterIfRequested();
    }
}

void MainWindowScene::selectSection(MainSection section) {
    m_state.section = section;
    if (m_mainWindow)
        m_mainWindow->model().setSection(section);
}

void MainWindowScene::close() {
    if (m_mainWindow && m_mainWindow->window().isVisible())
        m_mainWindow->window().close();
}

bool MainWindowScene::isVisible() const {
    return m_mainWindow && m_visibility.isOnScreen();
}

QQuickWindow* MainWindowScene::window() const {
    return m_mainWindow ? &m_mainWindow->window() : nullptr;
}

void MainWindowScene::makeWindow() {
    m_mainWindow = std::make_unique<MainWindow>(
        MainWindowServices{
            .appState = m_appState,
            .userDefaults = m_userDefaults,
            .activationPolicy = m_activationPolicy,
            .systemAppearance = m_systemAppearance,
            .visibility = m_visibility,
            .sectionViews = m_sectionViews,
        },
        m_state);
    connect(&m_mainWindow->controller(), &MainWindowController::closed, this, [this] {
        m_release.start();
        Q_EMIT closed();
    });
    connect(&m_mainWindow->model(), &MainWindowModel::quitRequested, this,
            &MainWindowScene::quitRequested);
}

void MainWindowScene::release() {
    m_state = m_mainWindow->state();
    m_mainWindow.reset();
    Q_EMIT released();
}

void MainWindowScene::closeLaterIfRequested() {
    const std::chrono::duration<double> delay(
        m_userDefaults.number(u"CloseMainWindowAfterSeconds"_s));
    // The toolkit's timers count the milliseconds in an int, which holds 24 days.
    constexpr std::chrono::milliseconds longestDelay(std::numeric_limits<int>::max());
    if (delay.count() > 0 && delay <= longestDelay) {
        QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(delay),
                           Qt::PreciseTimer, this, &MainWindowScene::close);
    }
}

} // namespace kestrowind
