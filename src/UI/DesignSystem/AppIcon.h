#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// The application's icon: white blades on the colours of air, in a rounded square that throws a
/// soft shadow. It stands in the middle of the item, which has to have room for the shadow.
class AppIcon : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double side READ side WRITE setSide NOTIFY sideChanged FINAL)
    QML_ELEMENT

public:
    explicit AppIcon(QQuickItem* parent = nullptr);

    /// Of the rounded square, points.
    [[nodiscard]] double side() const { return m_side; }
    void setSide(double side);

    void paint(QPainter* painter) override;

    /// Without a shadow, into the square.
    static void paintIcon(QPainter& painter, const QRectF& square);

Q_SIGNALS:
    void sideChanged();

private:
    double m_side = 0;
};

} // namespace kestrowind
