#include "UI/MainWindow/MainWindow.h"

#include "Core/LocalizedText.h"
#include "Platform/UserDefaults.h"
#include "UI/DesignSystem/LateScene.h"
#include "UI/MainWindow/MainWindowFrame.h"
#include "UI/MainWindow/SectionHost.h"

#include <QScreen>
#include <QtMath>

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// What the user forces on this scene; anything else follows the system.
std::optional<ColorScheme> forcedColorScheme(const UserDefaults& userDefaults) {
    const auto forced = userDefaults.string(u"ForceColorScheme"_s);
    if (forced == u"light"_s)
        return ColorScheme::light;
    if (forced == u"dark"_s)
        return ColorScheme::dark;
    return std::nullopt;
}

/// Now rather than with the first frame: a row or column has no height before.
void layOut(QQuickItem& item) {
    for (QQuickItem* child : item.childItems())
        layOut(*child);
    item.ensurePolished();
}

} // namespace

MainWindow::MainWindow(LateScene& scene, const MainWindowServices& services,
                       MainWindowVisibility& visibility, const MainWindowState& state)
    : m_services(services)
    , m_visibility(visibility)
    , m_window(scene.make(forcedColorScheme(services.userDefaults)))
    , m_model(services.appState, state.section)
    , m_controller(m_window, visibility, services.userDefaults, services.activationPolicy)
    , m_heightController(m_window, visibility,
                         [this] { return m_sectionHost ? m_sectionHost->viewportHeight() : 0; }) {
    restore(state);
    buildView(scene);
    connect(&visibility, &MainWindowVisibility::isOnScreenChanged, this,
            &MainWindow::updateSection);
    connect(&m_model, &MainWindowModel::sectionChanged, this, [this] {
        updateSection();
        m_heightController.refitWindow();
    });
    connect(&m_model, &MainWindowModel::closeRequested, &m_controller,
            &MainWindowController::windowShouldClose);
    connect(&m_model, &MainWindowModel::quitRequested, this, &MainWindow::quitRequested);
    connect(&m_controller, &MainWindowController::closed, &m_heightController,
            &MainWindowHeightController::finishResizing);
    // Only once the window stands on the screen is it known how much its title bar takes.
    connect(&m_window, &QQuickWindow::frameSwapped, &m_heightController,
            &MainWindowHeightController::refitWindow,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

MainWindow::~MainWindow() = default;

MainWindowState MainWindow::state() const {
    return {
        .section = m_model.section(),
        .framePosition = m_window.framePosition(),
        .size = m_window.size(),
        .isMaximized = m_window.windowStates().testFlag(Qt::WindowMaximized),
    };
}

void MainWindow::show() {
    m_controller.show();
    updateSection();
}

void MainWindow::openAtComfortableWidth() {
    if (const QScreen* screen = m_window.screen()) {
        const auto frame =
            MainWindowFrame::comfortableFrame(m_window.geometry(), screen->availableGeometry());
        if (frame)
            m_window.setGeometry(frame->toRect());
    }
}

void MainWindow::restore(const MainWindowState& state) {
    m_window.setTitle(localized("app.window.mainTitle"));
    m_window.resize(state.size);
    if (state.framePosition)
        m_window.setFramePosition(*state.framePosition);
    if (state.isMaximized)
        m_window.setWindowStates(Qt::WindowMaximized);
    // Nothing of a window that nobody sees is worth its memory.
    m_window.setPersistentSceneGraph(false);
    m_window.setPersistentGraphics(false);
}

void MainWindow::buildView(LateScene& scene) {
    m_window.setResizeMode(QQuickView::SizeRootObjectToView);
    scene.load(QUrl(u"qrc:/qt/qml/Kestrowind/MainWindow/MainWindowView.qml"_s), m_model);
    QQuickItem& view = *m_window.rootObject();
    m_sectionHost = view.findChild<SectionHost*>();
    connect(m_sectionHost, &SectionHost::naturalHeightChanged, this,
            [this] { m_heightController.fitWindow(m_sectionHost->naturalHeight()); });
    layOut(view);
    const double chromeHeight = view.height() - m_sectionHost->viewportHeight();
    m_window.setMinimumSize({static_cast<int>(MainWindowFrame::minimumContentWidth),
                             qCeil(MainWindowFrame::minimumContentHeight + chromeHeight)});
}

void MainWindow::updateSection() {
    if (m_visibility.isOnScreen())
        showSection(m_model.section());
    else
        m_sectionHost->clear();
}

void MainWindow::showSection(MainSection section) {
    const auto view = std::ranges::find(m_services.sectionViews, section, &SectionView::section);
    if (view != m_services.sectionViews.end() &&
        m_sectionHost->load(view->qmlUrl, {}, view->makeModel ? view->makeModel() : nullptr))
        return;
    m_sectionHost->load(QUrl(u"qrc:/qt/qml/Kestrowind/MainWindow/SectionTitle.qml"_s),
                        {{u"section"_s, QVariant::fromValue(sectionChoice(section))}}, nullptr);
}

} // namespace kestrowind
