#pragma once

#include "UI/DesignSystem/PaintedItem.h"

namespace kestrowind {

/// A vertical line, 4 points on, 4 off.
class DashedLine : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    QColor m_color = Qt::black;
};

} // namespace kestrowind
