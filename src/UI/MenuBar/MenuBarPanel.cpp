#include "UI/MenuBar/MenuBarPanel.h"

#include "Core/LocalizedText.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/MenuBar/MenuBarPanelPlacement.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickItem>
#include <QScreen>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// The corners of the panel, as MenuBarView draws them.
constexpr double cornerRadius = 12;

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

MenuBarPanel::MenuBarPanel(AppState& appState, SystemAppearance* appearance,
                           MenuBarPanelSetup setup)
    : m_setup(setup)
    , m_model(appState)
    , m_scene({.background = [this](ColorScheme scheme) { return background(scheme); },
               .systemAppearance = appearance,
               .releaseDelay = setup.releaseDelay}) {
    connect(&m_model, &MenuBarModel::dismissRequested, this, &MenuBarPanel::close);
    connect(&m_model, &MenuBarModel::quitRequested, this, &MenuBarPanel::quitRequested);
    connect(&m_scene, &LateScene::released, this, &MenuBarPanel::released);
}

void MenuBarPanel::toggle(const QRect& icon) {
    if (isOpen())
        close();
    else if (!m_sinceClosedFromOutside.isValid() ||
             m_sinceClosedFromOutside.hasExpired(m_setup.sameClick.count()))
        open(icon);
}

void MenuBarPanel::open(const QRect& icon) {
    m_icon = icon;
    m_model.setIsFollowing(true);
    if (!view())
        makeView();
    place();
    m_wasActive = false;
    // The keyboard starts on the panel itself, which tells assistive technology what came up.
    view()->rootObject()->forceActiveFocus(Qt::PopupFocusReason);
    view()->show();
    m_window->setOpen(true);
    view()->requestActivate();
}

void MenuBarPanel::close() {
    if (!isOpen())
        return;
    m_window->setOpen(false);
    view()->hide();
    m_model.setIsFollowing(false);
}

void MenuBarPanel::closeFromOutside() {
    if (!isOpen())
        return;
    m_sinceClosedFromOutside.start();
    close();
}

void MenuBarPanel::makeView() {
    m_isComposited = m_setup.isComposited();
    QQuickView& view = m_scene.make();
    view.setTitle(localized("menuBar.panel.title"));
    view.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                  Qt::NoDropShadowWindowHint);
    view.setResizeMode(QQuickView::SizeViewToRootObject);
    m_window = PanelWindow::make(view);
    connect(m_window, &PanelWindow::clickedElsewhere, this, &MenuBarPanel::closeFromOutside);
    m_scene.load(QUrl(u"qrc:/qt/qml/Kestrowind/MenuBar/MenuBarView.qml"_s), m_model);
    connect(&view, &QWindow::heightChanged, this, &MenuBarPanel::place);
    connect(&view, &QWindow::activeChanged, this, [this, &view] {
        if (m_wasActive && !view.isActive())
            closeFromOutside();
        m_wasActive = view.isActive();
    });
}

void MenuBarPanel::place() {
    const QScreen* screen = screenAt(m_icon.center());
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    view()->rootObject()->setProperty("maximumHeight",
                                      available.height() - 2 * MenuBarPanelPlacement::gap);
    view()->setPosition(MenuBarPanelPlacement::topLeft(view()->size(), m_icon, available));
    if (!m_isComposited)
        view()->setMask(roundedRegion(view()->size()));
}

QColor MenuBarPanel::background(ColorScheme scheme) const {
    // What is transparent is black where nobody composites: the smooth edge of the corners blends
    // into the hairline instead, and the mask cuts off the rest.
    return m_isComposited ? Qt::transparent
                          : Palette::composited(Palette::colors(scheme).controlBorder,
                                                Palette::colors(scheme).panelBackground);
}

} // namespace kestrowind
