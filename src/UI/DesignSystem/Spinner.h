#pragma once

#include "UI/DesignSystem/VisibilityWatch.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QTimer>

#include <chrono>

namespace kestrowind {

/// Something is being done that nobody knows the end of: spokes, one after another lit. It moves
/// only while somebody can see it.
class Spinner : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double diameter READ diameter WRITE setDiameter NOTIFY diameterChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ELEMENT

public:
    static constexpr int spokeCount = 8;
    static constexpr std::chrono::milliseconds stepInterval{100};

    explicit Spinner(QQuickItem* parent = nullptr);

    [[nodiscard]] double diameter() const { return m_diameter; }
    void setDiameter(double diameter);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    [[nodiscard]] bool isTurning() const { return m_steps.isActive(); }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void diameterChanged();
    void colorChanged();

private:
    void takeVisibility();
    void step();

    double m_diameter = 16;
    QColor m_color = Qt::gray;
    int m_lit = 0; ///< the brightest spoke, clockwise from the top
    QTimer m_steps;
    VisibilityWatch m_visibility;
};

} // namespace kestrowind
