#include "UI/DesignSystem/ScenePalette.h"

#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>

namespace kestrowind {

void ScenePalette::classBegin() {
    const SceneAppearance& appearance = SceneAppearance::of(*qmlEngine(this));
    m_scheme = appearance.colorScheme();
    connect(&appearance, &SceneAppearance::colorSchemeChanged, this, [this, &appearance] {
        m_scheme = appearance.colorScheme();
        Q_EMIT changed();
    });
}

QColor ScenePalette::temperatureColorFor(double celsius, bool dark) {
    return Palette::temperatureColor(celsius, dark ? ColorScheme::dark : ColorScheme::light);
}

} // namespace kestrowind
