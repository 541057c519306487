#pragma once

#include "UI/DesignSystem/PaintedItem.h"

#include <QColor>

#include <limits>

namespace kestrowind {

/// The soft shadow of a rounded rectangle, drawn around it and never under it: what lies on a
/// translucent card stays as light as it is. The item is larger than what casts the shadow by twice
/// the blur radius at every side.
class SoftShadow : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(double blurRadius MEMBER m_blurRadius NOTIFY lookChanged FINAL)
    /// Downwards, points.
    Q_PROPERTY(double offset MEMBER m_offset NOTIFY lookChanged FINAL)
    /// No more than half of the shorter side is used, and that is the default: a capsule.
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    double m_blurRadius = 0;
    double m_offset = 0;
    double m_cornerRadius = std::numeric_limits<double>::max();
    QColor m_color = Qt::black;
};

} // namespace kestrowind
