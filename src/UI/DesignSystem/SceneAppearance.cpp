#include "UI/DesignSystem/SceneAppearance.h"

#include "Core/AssignIfChanged.h"

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
    , m_colorScheme(paletteScheme())
    , m_accentColor(toolkitAccent()) {
    qGuiApp->installEventFilter(this);
}

void SceneAppearance::setSystemAppearance(SystemAppearance* appearance) {
    if (m_systemAppearance)
        m_systemAppearance->disconnect(this);
    m_systemAppearance = appearance;
    if (appearance) {
        connect(appearance, &SystemAppearance::colorSchemeChanged, this,
                &SceneAppearance::reconsider);
        connect(appearance, &SystemAppearance::accentColorChanged, this,
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
    if (assignIfChanged(m_colorScheme, scheme.value_or(paletteScheme())))
        Q_EMIT colorSchemeChanged();

    std::optional<QColor> accent = toolkitAccent();
    const auto chosen = m_systemAppearance ? m_systemAppearance->accentColor() : std::nullopt;
    if (chosen)
        accent =
            QColor::fromRgbF(static_cast<float>(chosen->red), static_cast<float>(chosen->green),
                             static_cast<float>(chosen->blue));
    if (assignIfChanged(m_accentColor, accent))
        Q_EMIT accentColorChanged();
}

} // namespace kestrowind
