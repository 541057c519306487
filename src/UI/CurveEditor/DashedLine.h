#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace kestrowind {

/// A vertical line, 4 points on, 4 off.
class DashedLine : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ELEMENT

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_color = Qt::black;
};

} // namespace kestrowind
