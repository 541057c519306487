#pragma once

#include "UI/DesignSystem/PaintedItem.h"

namespace kestrowind {

/// The application's icon: white blades on the colours of air, in a rounded square that throws a
/// soft shadow. It stands in the middle of the item, which has to have room for the shadow.
class AppIcon : public kestrowind::PaintedItem {
    Q_OBJECT
    /// Of the rounded square, points.
    Q_PROPERTY(double side MEMBER m_side NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    double m_side = 0;
};

} // namespace kestrowind
