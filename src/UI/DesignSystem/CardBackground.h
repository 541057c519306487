#pragma once

#include "UI/DesignSystem/PaintedItem.h"

#include <QColor>

namespace kestrowind {

/// What lies under a card: a translucent rounded rectangle, lit along its upper inner edge and
/// shaded along the lower one. The picture is as narrow as its corners and stretched between them,
/// so that a wide card costs little memory.
class CardBackground : public kestrowind::PaintedItem {
    Q_OBJECT
    /// No more than half of the shorter side is used: a large value makes a capsule.
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY lookChanged FINAL)
    /// A translucent colour over the glass; none by default.
    Q_PROPERTY(QColor tint MEMBER m_tint NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;
    [[nodiscard]] QRectF paintedBounds() const override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    [[nodiscard]] double radius() const;
    /// Of the left and of the right end of the picture.
    [[nodiscard]] int endPixels() const;

    double m_cornerRadius = 0;
    QColor m_tint = Qt::transparent;
};

} // namespace kestrowind
