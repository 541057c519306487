#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace kestrowind {

/// A disc in a vertical gradient, smooth at its edge in every renderer.
class GradientDisc : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QColor topColor MEMBER m_topColor NOTIFY topColorChanged FINAL)
    Q_PROPERTY(QColor bottomColor MEMBER m_bottomColor NOTIFY bottomColorChanged FINAL)
    QML_ELEMENT

public:
    explicit GradientDisc(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void topColorChanged();
    void bottomColorChanged();

private:
    QColor m_topColor = Qt::black;
    QColor m_bottomColor = Qt::black;
};

} // namespace kestrowind
