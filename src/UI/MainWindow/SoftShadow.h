#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// The soft shadow of a capsule of this item's size, drawn around it and never under it: what lies
/// on a translucent capsule stays as light as it is.
class SoftShadow : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double blurRadius READ blurRadius WRITE setBlurRadius NOTIFY blurRadiusChanged FINAL)
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY offsetChanged FINAL)
    QML_ELEMENT

public:
    explicit SoftShadow(QQuickItem* parent = nullptr);

    [[nodiscard]] double blurRadius() const { return m_blurRadius; }
    void setBlurRadius(double radius);
    /// Downwards, points.
    [[nodiscard]] double offset() const { return m_offset; }
    void setOffset(double offset);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void blurRadiusChanged();
    void offsetChanged();

private:
    double m_blurRadius = 0;
    double m_offset = 0;
};

} // namespace kestrowind
