#include "UI/DesignSystem/SceneAppearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlEngine>

namespace kestrowind {
namespace {

ColorScheme paletteScheme() {
    const QColor background = QGuiApplication::palette().color(QPalette::Window);
    return background.lightnessF() < 0.5f ? ColorScheme::dark : ColorScheme::light;
}

} // namespace

SceneAppearance& SceneAppearance::of(QQmlEngine& engine) {
    if (auto* existing = engine.findChild<SceneAppearance*>(QString(), Qt::FindDirectChildrenOnly))
        return *existing;
    return *new SceneAppearance(engine);
}

SceneAppearance::SceneAppearance(QQmlEngine& engine)
    : QObject(&engine)
    , m_colorScheme(paletteScheme()) {
    qGuiApp->installEventFilter(this);
}

void SceneAppearance::setSystemAppearance(SystemAppearance* appearance) {
    if (m_systemAppearance)
        m_systemAppearance->disconnect(this);
    m_systemAppearance = appearance;
    if (appearance) {
        connect(appearance, &SystemAppearance::colorSchemeChanged, this,
                &SceneAppearance::reconsider);
    }
    reconsider();
}

void SceneAppearance::setForcedScheme(std::optional<ColorScheme> scheme) {
    m_forcedScheme = scheme;
    reconsider();
}

bool SceneAppearance::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp)
        reconsider();
    return QObject::eventFilter(watched, event);
}

void SceneAppearance::reconsider() {
    std::optional<ColorScheme> scheme = m_forcedScheme;
    if (!scheme && m_systemAppearance)
        scheme = m_systemAppearance->colorScheme();
    const ColorScheme effective = scheme.value_or(paletteScheme());
    if (effective == m_colorScheme)
        return;
    m_colorScheme = effective;
    Q_EMIT colorSchemeChanged();
}

} // namespace kestrowind
