#pragma once

#include "UI/DesignSystem/PaintedItem.h"

#include <QColor>

namespace kestrowind {

/// The fan standing still, in one colour.
class FanGlyph : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(double side MEMBER m_side NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    explicit FanGlyph(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter) override;

private:
    double m_side = 0;
    QColor m_color = Qt::black;
};

} // namespace kestrowind
