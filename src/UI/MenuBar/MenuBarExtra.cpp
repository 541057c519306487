#include "UI/MenuBar/MenuBarExtra.h"

#include "Core/AppState.h"
#include "Core/LocalizedText.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace kestrowind {
namespace {

double sharpestScale() {
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.isEmpty())
        return 2.0;
    double scale = 0;
    for (const QScreen* screen : screens)
        scale = std::max(scale, screen->devicePixelRatio());
    return scale;
}

} // namespace

MenuBarExtra::MenuBarExtra(AppState& appState, SystemAppearance* appearance, StatusItem& statusItem,
                           MenuBarPanelSetup setup)
    : m_appState(appState)
    , m_appearance(appearance)
    , m_statusItem(statusItem)
    , m_icon(statusItem.style())
    , m_panel(appState, appearance, setup) {
    connect(&m_panel, &MenuBarPanel::quitRequested, this, &MenuBarExtra::quitRequested);
    connect(&m_panel, &MenuBarPanel::released, this, &MenuBarExtra::panelReleased);
    connect(&statusItem, &StatusItem::placed, this, &MenuBarExtra::appear);
    connect(&statusItem, &StatusItem::clicked, this, &MenuBarExtra::clicked);
    connect(&statusItem, &StatusItem::menuRequested, &m_panel, &MenuBarPanel::close);
}

void MenuBarExtra::appear() {
    m_statusItem.setCommands(
        {{localized("menuBar.openApplicationButton"), [this] { Q_EMIT openMainWindowRequested(); }},
         {localized("menuBar.quitButton"), [this] { Q_EMIT quitRequested(); }}});
    m_appState.telemetry().onSample(this, [this](const TelemetrySample&) { updateIcon(); });
    if (m_appearance)
        connect(m_appearance, &SystemAppearance::colorSchemeChanged, this,
                &MenuBarExtra::updateIcon);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &MenuBarExtra::updateIcon);
    // The screen that goes is among the screens until its removal is over.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &MenuBarExtra::updateIcon,
            Qt::QueuedConnection);
    updateIcon();
}

void MenuBarExtra::updateIcon() {
    const MenuBarReading reading = MenuBarReading::of(m_appState.telemetry());
    if (m_icon.update(reading, sharpestScale(), colorScheme()))
        m_statusItem.setPicture(m_icon.icon(),
                                reading.temperatureText() + u'\n' + reading.fanText());
}

ColorScheme MenuBarExtra::colorScheme() const {
    // Most desktops have dark panels.
    return m_appearance ? m_appearance->colorScheme().value_or(ColorScheme::dark)
                        : ColorScheme::dark;
}

void MenuBarExtra::clicked() {
    // Trays on the bus do not say where they have put the item; the click does.
    const QRect item = m_statusItem.geometry();
    m_panel.toggle(item.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : item);
}

} // namespace kestrowind
