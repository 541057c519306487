#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace kestrowind {

/// A line along the inner edge of a rounded rectangle, from one colour at the top to another at the
/// bottom, whole or in dashes.
class CardOutline : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double lineWidth MEMBER m_lineWidth NOTIFY lineWidthChanged FINAL)
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY cornerRadiusChanged FINAL)
    Q_PROPERTY(QColor topColor MEMBER m_topColor NOTIFY topColorChanged FINAL)
    Q_PROPERTY(QColor bottomColor MEMBER m_bottomColor NOTIFY bottomColorChanged FINAL)
    /// Points drawn, points left out, and so on; empty for a whole line.
    Q_PROPERTY(QList<double> dashes MEMBER m_dashes NOTIFY dashesChanged FINAL)
    QML_ELEMENT

public:
    explicit CardOutline(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void lineWidthChanged();
    void cornerRadiusChanged();
    void topColorChanged();
    void bottomColorChanged();
    void dashesChanged();

private:
    double m_lineWidth = 1;
    double m_cornerRadius = 0;
    QColor m_topColor = Qt::black;
    QColor m_bottomColor = Qt::black;
    QList<double> m_dashes;
};

} // namespace kestrowind
