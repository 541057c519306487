#include "UI/DesignSystem/PointerWatch.h"

#include "Core/AssignIfChanged.h"

namespace kestrowind {

void PointerWatch::take(QHoverEvent* event, bool isHovered) {
    // Whoever is below sees it, too.
    event->ignore();
    if (assignIfChanged(m_isHovered, isHovered))
        Q_EMIT hoveredChanged();
}

} // namespace kestrowind
