#include "UI/DesignSystem/SceneAppearance.h"

#include <QGuiApplication>
#include <QPalette>

namespace kestrowind {

std::optional<QColor> SceneAppearance::toolkitAccent() {
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
}

} // namespace kestrowind
