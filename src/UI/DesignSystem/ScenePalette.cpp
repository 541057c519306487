#include "UI/DesignSystem/ScenePalette.h"

#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>

namespace kestrowind {

void ScenePalette::classBegin() {
    const SceneAppearance& appearance = SceneAppearance::of(*qmlEngine(this));
    const auto follow = [this, &appearance] {
        m_scheme = appearance.colorScheme();
        static_cast<Palette::Colors&>(*this) = Palette::colors(m_scheme, appearance.accentColor());
        Q_EMIT changed();
    };
    connect(&appearance, &SceneAppearance::colorSchemeChanged, this, follow);
    connect(&appearance, &SceneAppearance::accentColorChanged, this, follow);
    follow();
}

QColor ScenePalette::temperatureColorFor(double celsius, bool dark) {
    return Palette::temperatureColor(celsius, dark ? ColorScheme::dark : ColorScheme::light);
}

} // namespace kestrowind
