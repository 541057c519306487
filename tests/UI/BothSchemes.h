#pragma once

#include "Support/ReferencePicture.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>
#include <QQuickWindow>

namespace kestrowind {

/// What a shown window looks like, light on the left and dark on the right: it has followed the
/// change from one to the other. The engine is the one that its items were made with.
[[nodiscard]] inline QImage inBothSchemes(QQuickWindow& window, QQmlEngine& engine) {
    QList<QImage> pictures;
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        SceneAppearance::of(engine).setForcedScheme(scheme);
        window.setColor(Palette::colors(scheme).windowBackground);
        pictures.append(window.grabWindow());
    }
    return sideBySide(pictures);
}

} // namespace kestrowind
