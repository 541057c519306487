#pragma once

#include "UI/DesignSystem/PaintedItem.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QColor>
#include <QTimer>

#include <chrono>

namespace kestrowind {

/// Something is being done that nobody knows the end of: spokes, one after another lit. It moves
/// only while somebody can see it.
class Spinner : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(double diameter MEMBER m_diameter NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    static constexpr int spokeCount = 8;
    static constexpr std::chrono::milliseconds stepInterval{100};

    explicit Spinner(QQuickItem* parent = nullptr);

    [[nodiscard]] bool isTurning() const { return m_steps.isActive(); }

protected:
    void paint(QPainter& painter) override;

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
