#include "UI/MenuBar/MenuBarPanel.h"

#include "Core/LocalizedText.h"
#include "Core/Logging.h"
#include "UI/DesignSystem/DesktopCompositing.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SceneAppearance.h"
#include "UI/MenuBar/MenuBarPanelPlacement.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QQuickItem>
#include <QScreen>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// The corners of the panel, as MenuBarView draws them.
constexpr double cornerRadius = 12;

/// Clicks on the desktop and on panels move no focus: X11 tells of them only who holds the pointer.
bool isX11() {
    return QGuiApplication::platformName() == "xcb"_L1;
}

const QScreen* screenAt(const QPoint& point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    return screen ? screen : QGuiApplication::primaryScreen();
}

/// Everything within the rounded corners, and what they merely touch.
QRegion roundedRegion(const QSize& size) {
    QBitmap bitmap(size);
    bitmap.clear();
    QPainter painter(&bitmap);
    painter.setPen(Qt::color1);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(size)).adjusted(0, 0, -1, -1), cornerRadius,
                            cornerRadius);
    painter.end();
    return QRegion(bitmap);
}

} // namespace

MenuBarPanel::MenuBarPanel(AppState& appState, SystemAppearance* appearance)
    : MenuBarPanel(appState, appearance, Timing()) {}

MenuBarPanel::MenuBarPanel(AppState& appState, SystemAppearance* appearance, Timing timing)
    : m_appearance(appearance)
    , m_timing(timing)
    , m_model(appState) {
    QQmlEngine::setObjectOwnership(&m_model, QQmlEngine::CppOwnership);
    connect(&m_model, &MenuBarModel::dismissRequested, this, &MenuBarPanel::close);
    connect(&m_model, &MenuBarModel::quitRequested, this, &MenuBarPanel::quitRequested);
    m_releaseTimer.setSingleShot(true);
    m_releaseTimer.setInterval(timing.releaseDelay);
    connect(&m_releaseTimer, &QTimer::timeout, this, [this] {
        releaseScene();
        Q_EMIT released();
    });
}

MenuBarPanel::~MenuBarPanel() {
    releaseScene();
}

void MenuBarPanel::toggle(const QRect& icon) {
    if (isOpen()) {
        close();
        return;
    }
    if (m_sinceClosedFromOutside.isValid() &&
        !m_sinceClosedFromOutside.hasExpired(m_timing.sameClick.count()))
        return;
    open(icon);
}

void MenuBarPanel::open(const QRect& icon) {
    m_icon = icon;
    m_releaseTimer.stop();
    m_model.setIsFollowing(true);
    if (!m_view && !makeScene()) {
        m_model.setIsFollowing(false);
        return;
    }
    place();
    m_wasActive = false;
    // The keyboard starts on the panel itself, which tells assistive technology what came up.
    m_view->rootObject()->forceActiveFocus(Qt::PopupFocusReason);
    m_view->show();
    m_view->requestActivate();
}

void MenuBarPanel::close() {
    if (!isOpen())
        return;
    if (isX11())
        m_view->setMouseGrabEnabled(false);
    m_view->hide();
    m_model.setIsFollowing(false);
    m_releaseTimer.start();
}

void MenuBarPanel::closeFromOutside() {
    if (!isOpen())
        return;
    m_sinceClosedFromOutside.start();
    close();
}

bool MenuBarPanel::makeScene() {
    m_isComposited = isDesktopComposited();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(u"qrc:/qt/qml"_s);
    SceneAppearance::of(*m_engine).setSystemAppearance(m_appearance);
    m_view = std::make_unique<QQuickView>(m_engine.get(), nullptr);
    m_view->setTitle(localized("menuBar.panel.title"));
    m_view->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                     Qt::NoDropShadowWindowHint);
    updateBackground();
    connect(&SceneAppearance::of(*m_engine), &SceneAppearance::colorSchemeChanged, this,
            &MenuBarPanel::updateBackground);
    m_view->setResizeMode(QQuickView::SizeViewToRootObject);
    m_view->setInitialProperties({{u"model"_s, QVariant::fromValue(&m_model)}});
    m_view->installEventFilter(this);
    m_view->setSource(QUrl(u"qrc:/qt/qml/Kestrowind/MenuBar/MenuBarView.qml"_s));
    if (m_view->status() != QQuickView::Ready) {
        qCWarning(shellLog) << "the menu-bar panel cannot be shown:" << m_view->errors();
        releaseScene();
        return false;
    }
    connect(m_view.get(), &QWindow::heightChanged, this, &MenuBarPanel::place);
    connect(m_view.get(), &QWindow::activeChanged, this, [this] {
        if (m_wasActive && !m_view->isActive())
            closeFromOutside();
        m_wasActive = m_view->isActive();
    });
    return true;
}

void MenuBarPanel::releaseScene() {
    m_view.reset();
    m_engine.reset();
}

void MenuBarPanel::place() {
    const QScreen* screen = screenAt(m_icon.center());
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    m_view->rootObject()->setProperty("maximumHeight",
                                      available.height() - 2 * MenuBarPanelPlacement::gap);
    m_view->setPosition(MenuBarPanelPlacement::topLeft(m_view->size(), m_icon, available));
    shape();
}

void MenuBarPanel::updateBackground() {
    if (m_isComposited) {
        m_view->setColor(Qt::transparent);
        return;
    }
    // What is transparent is black: the smooth edge of the corners blends into
    // the hairline instead, and the mask cuts off the rest.
    const ColorScheme scheme = SceneAppearance::of(*m_engine).colorScheme();
    m_view->setColor(Palette::composited(Palette::color(Palette::Role::controlBorder, scheme),
                                         Palette::color(Palette::Role::panelBackground, scheme)));
}

void MenuBarPanel::shape() {
    if (!m_isComposited)
        m_view->setMask(roundedRegion(m_view->size()));
}

bool MenuBarPanel::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Expose:
        if (isOpen() && m_view->isExposed() && isX11())
            m_view->setMouseGrabEnabled(true);
        break;
    case QEvent::MouseButtonPress: {
        const QPointF position = static_cast<QMouseEvent*>(event)->position();
        if (!QRectF(QPointF(), QSizeF(m_view->size())).contains(position)) {
            closeFromOutside();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kestrowind
