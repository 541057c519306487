#include "UI/MenuBar/FlowLayout.h"

#include "Core/AssignIfChanged.h"

namespace kestrowind {

void FlowLayout::setSpacing(double spacing) {
    if (!assignIfChanged(m_arrangement.spacing, spacing))
        return;
    arrange();
    Q_EMIT spacingChanged();
}

void FlowLayout::setRowSpacing(double rowSpacing) {
    if (!assignIfChanged(m_arrangement.rowSpacing, rowSpacing))
        return;
    arrange();
    Q_EMIT rowSpacingChanged();
}

void FlowLayout::componentComplete() {
    QQuickItem::componentComplete();
    arrange();
}

void FlowLayout::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemChildAddedChange)
        follow(*data.item);
    if (change == ItemChildRemovedChange)
        data.item->disconnect(this);
    if (change == ItemChildAddedChange || change == ItemChildRemovedChange) {
        arrange();
        // A repeater moves a new child to its place among the others only afterwards.
        polish();
    }
    QQuickItem::itemChange(change, data);
}

void FlowLayout::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        arrange();
}

void FlowLayout::follow(const QQuickItem& child) {
    connect(&child, &QQuickItem::implicitWidthChanged, this, &FlowLayout::arrange);
    connect(&child, &QQuickItem::implicitHeightChanged, this, &FlowLayout::arrange);
}

// At once rather than before the next frame: the size of a window may depend on it.
void FlowLayout::arrange() {
    if (!isComponentComplete())
        return;
    QList<QQuickItem*> children;
    QList<QSizeF> sizes;
    for (QQuickItem* child : childItems()) {
        const QSizeF size(child->implicitWidth(), child->implicitHeight());
        if (size.isEmpty())
            continue; // a repeater, say
        children.append(child);
        sizes.append(size);
    }
    const QList<QPointF> corners = m_arrangement.placed(sizes, {0, 0, width(), 0});
    for (qsizetype i = 0; i < children.size(); ++i) {
        children[i]->setPosition(corners[i]);
        children[i]->setSize(sizes[i]);
    }
    setImplicitSize(m_arrangement.measured(sizes, std::nullopt).width(),
                    m_arrangement.measured(sizes, width()).height());
}

} // namespace kestrowind
