#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

#include <limits>

namespace kestrowind {

/// The soft shadow of a rounded rectangle, drawn around it and never under it: what lies on a
/// translucent card stays as light as it is. The item is larger than what casts the shadow by twice
/// the blur radius at every side.
class SoftShadow : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double blurRadius READ blurRadius WRITE setBlurRadius NOTIFY blurRadiusChanged FINAL)
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY offsetChanged FINAL)
    Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY
                   cornerRadiusChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ELEMENT

public:
    explicit SoftShadow(QQuickItem* parent = nullptr);

    [[nodiscard]] double blurRadius() const { return m_blurRadius; }
    void setBlurRadius(double radius);
    /// Downwards, points.
    [[nodiscard]] double offset() const { return m_offset; }
    void setOffset(double offset);
    /// No more than half of the shorter side is used, and that is the default: a capsule.
    [[nodiscard]] double cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(double radius);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void blurRadiusChanged();
    void offsetChanged();
    void cornerRadiusChanged();
    void colorChanged();

private:
    double m_blurRadius = 0;
    double m_offset = 0;
    double m_cornerRadius = std::numeric_limits<double>::max();
    QColor m_color = Qt::black;
};

} // namespace kestrowind
