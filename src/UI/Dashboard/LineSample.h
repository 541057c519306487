#pragma once

#include "UI/DesignSystem/PaintedItem.h"

namespace kestrowind {

/// A straight piece of a fan's line for the legend, through the middle of its height.
class LineSample : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(bool isDashed MEMBER m_isDashed NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    explicit LineSample(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter) override;

private:
    bool m_isDashed = false;
};

} // namespace kestrowind
