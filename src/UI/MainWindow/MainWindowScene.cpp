#include "UI/MainWindow/MainWindowScene.h"

#include "Platform/UserDefaults.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/MainWindow/MainWindowFrame.h"

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Seen for a moment at the edges of a window that is being enlarged.
QColor background(ColorScheme scheme) {
    return Palette::colors(scheme).windowBackground;
}

} // namespace

MainWindowScene::MainWindowScene(MainWindowServices services, SystemAppearance* systemAppearance,
                                 std::chrono::milliseconds releaseDelay)
    : m_services(std::move(services))
    , m_state{.section = sectionNamed(
                  m_services.userDefaults.string(u"InitialSection"_s).value_or(QString())),
              .size = QSize(static_cast<int>(MainWindowFrame::comfortableWidth),
                            static_cast<int>(MainWindowFrame::defaultHeight))}
    , m_scene({.background = &background,
               .systemAppearance = systemAppearance,
               .releaseDelay = releaseDelay}) {
    connect(&m_scene, &LateScene::aboutToRelease, this,
            [this] { m_state = m_mainWindow->state(); });
    connect(&m_scene, &LateScene::released, this, [this] {
        m_mainWindow.reset();
        Q_EMIT released();
    });
}

MainWindowScene::~MainWindowScene() = default;

void MainWindowScene::show() {
    if (!m_mainWindow) {
        m_mainWindow = std::make_unique<MainWindow>(m_scene, m_services, m_visibility, m_state);
        connect(m_mainWindow.get(), &MainWindow::quitRequested, this,
                &MainWindowScene::quitRequested);
    }
    m_mainWindow->show();
    if (!m_wasShown) {
        m_wasShown = true;
        m_mainWindow->openAtComfortableWidth();
        closeLaterIfRequested();
    }
}

void MainWindowScene::closeLaterIfRequested() {
    const std::chrono::duration<double> delay(
        m_services.userDefaults.number(u"CloseMainWindowAfterSeconds"_s));
    // The toolkit's timers count the milliseconds in an int, which holds 24 days.
    constexpr std::chrono::milliseconds longestDelay(std::numeric_limits<int>::max());
    if (delay.count() > 0 && delay <= longestDelay) {
        QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(delay),
                           Qt::PreciseTimer, this, [this] {
                               if (window() && window()->isVisible())
                                   window()->close();
                           });
    }
}

} // namespace kestrowind
