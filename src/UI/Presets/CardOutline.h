#pragma once

#include "UI/DesignSystem/PaintedItem.h"

namespace kestrowind {

/// A line along the inner edge of a rounded rectangle, from one colour at the top to another at the
/// bottom, whole or in dashes.
class CardOutline : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(double lineWidth MEMBER m_lineWidth NOTIFY lookChanged FINAL)
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor topColor MEMBER m_topColor NOTIFY lookChanged FINAL)
    /// As at the top unless it is set.
    Q_PROPERTY(QColor bottomColor MEMBER m_bottomColor NOTIFY lookChanged FINAL)
    /// Points drawn, points left out, and so on; empty for a whole line.
    Q_PROPERTY(QList<double> dashes MEMBER m_dashes NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    double m_lineWidth = 1;
    double m_cornerRadius = 0;
    QColor m_topColor = Qt::black;
    QColor m_bottomColor;
    QList<double> m_dashes;
};

} // namespace kestrowind
