#pragma once

#include "UI/DesignSystem/PaintedItem.h"

namespace kestrowind {

/// A disc in a vertical gradient, smooth at its edge in every renderer.
class GradientDisc : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(QColor topColor MEMBER m_topColor NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor bottomColor MEMBER m_bottomColor NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    QColor m_topColor = Qt::black;
    QColor m_bottomColor = Qt::black;
};

} // namespace kestrowind
