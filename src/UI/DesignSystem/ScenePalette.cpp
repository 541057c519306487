#include "UI/DesignSystem/ScenePalette.h"

#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>

namespace kestrowind {

void ScenePalette::classBegin() {
    const SceneAppearance& appearance = SceneAppearance::of(*qmlEngine(this));
    m_scheme = appearance.colorScheme();
    m_accent = appearance.accentColor();
    const auto take = [this, &appearance] {
        m_scheme = appearance.colorScheme();
        m_accent = appearance.accentColor();
        Q_EMIT changed();
    };
    connect(&appearance, &SceneAppearance::colorSchemeChanged, this, take);
    connect(&appearance, &SceneAppearance::accentColorChanged, this, take);
}

QColor ScenePalette::temperatureColorFor(double celsius, bool dark) {
    return Palette::temperatureColor(celsius, dark ? ColorScheme::dark : ColorScheme::light);
}

} // namespace kestrowind
