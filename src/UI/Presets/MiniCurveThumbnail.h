#pragma once

#include "UI/DesignSystem/PaintedItem.h"
#include "UI/Presets/ThumbnailCurve.h"

namespace kestrowind {

/// A fan curve in small: a line over a faint area.
class MiniCurveThumbnail : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::ThumbnailCurve curve MEMBER m_curve NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor lineColor MEMBER m_lineColor NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor areaColor MEMBER m_areaColor NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    ThumbnailCurve m_curve;
    QColor m_lineColor = Qt::black;
    QColor m_areaColor = Qt::transparent;
};

} // namespace kestrowind
