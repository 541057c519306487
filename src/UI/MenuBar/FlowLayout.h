#pragma once

#include "UI/MenuBar/FlowArrangement.h"

#include <QQuickItem>

namespace kestrowind {

/// Gives its children their implicit sizes and arranges them in rows within its width.
class FlowLayout : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(double spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)
    Q_PROPERTY(double rowSpacing READ rowSpacing WRITE setRowSpacing NOTIFY rowSpacingChanged FINAL)
    QML_ELEMENT

public:
    using QQuickItem::QQuickItem;

    [[nodiscard]] double spacing() const { return m_arrangement.spacing; }
    void setSpacing(double spacing);
    [[nodiscard]] double rowSpacing() const { return m_arrangement.rowSpacing; }
    void setRowSpacing(double rowSpacing);

Q_SIGNALS:
    void spacingChanged();
    void rowSpacingChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void updatePolish() override { arrange(); }

private:
    void follow(const QQuickItem& child);
    void arrange();

    FlowArrangement m_arrangement;
};

} // namespace kestrowind
