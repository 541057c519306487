#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace kestrowind {

/// The fan standing still, in one colour.
class FanGlyph : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double side READ side WRITE setSide NOTIFY sideChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ELEMENT

public:
    explicit FanGlyph(QQuickItem* parent = nullptr);

    [[nodiscard]] double side() const { return m_side; }
    void setSide(double side);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void sideChanged();
    void colorChanged();

private:
    double m_side = 0;
    QColor m_color = Qt::black;
};

} // namespace kestrowind
