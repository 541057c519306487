#include "UI/DesignSystem/WindowCover.h"

#include "Core/AssignIfChanged.h"

#include <QWindow>

namespace kestrowind {

WindowCover& WindowCover::of(QWindow& window) {
    if (auto* existing = window.findChild<WindowCover*>(QString(), Qt::FindDirectChildrenOnly))
        return *existing;
    return *make(window);
}

WindowCover::WindowCover(QWindow& window)
    : QObject(&window) {}

void WindowCover::setCovered(bool isCovered) {
    if (assignIfChanged(m_isCovered, isCovered))
        Q_EMIT isCoveredChanged();
}

} // namespace kestrowind
