#include "UI/DesignSystem/FocusMemory.h"

#include <QQuickWindow>

namespace kestrowind {

void FocusMemory::remember(const QQuickItem* inWindowOf) {
    m_item = inWindowOf && inWindowOf->window() ? inWindowOf->window()->activeFocusItem() : nullptr;
    // Controls tell why they have the focus: those that got it by the keyboard show it.
    const QVariant reason = m_item ? m_item->property("focusReason") : QVariant();
    m_reason =
        reason.isValid() ? static_cast<Qt::FocusReason>(reason.toInt()) : Qt::OtherFocusReason;
}

void FocusMemory::giveBack() {
    // An item that is on its way out has no window any more.
    if (m_item && m_item->window())
        m_item->forceActiveFocus(m_reason);
    m_item.clear();
}

} // namespace kestrowind
