#include "UI/DesignSystem/PointerWatch.h"

#include "Core/AssignIfChanged.h"

namespace kestrowind {

void PointerWatch::take(QHoverEvent* event, bool isHovered) {
    // What it lies in sees the pointer, too.
    event->ignore();
    if (assignIfChanged(m_isHovered, isHovered))
        Q_EMIT hoveredChanged();
}

} // namespace kestrowind
