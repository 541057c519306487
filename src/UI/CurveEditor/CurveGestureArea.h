#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"

#include <QPointer>
#include <QQuickItem>
#include <QTimer>

#include <optional>

namespace kestrowind {

/// Lies over the whole chart and turns mouse, trackpad and touch into what the chart's model knows:
/// hovering, dragging, clicks, double clicks and context menus. Touch comes as the mouse events
/// that Qt makes of it.
///
/// A gesture that is taken away (the pointer is grabbed by another, the window or the item is
/// hidden) ends as if it had not begun.
class CurveGestureArea : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FanCurveChartModel* chart READ chart WRITE setChart NOTIFY chartChanged
                   FINAL REQUIRED)
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(QPointF pointer READ pointer NOTIFY pointerChanged FINAL)
    QML_ELEMENT

public:
    explicit CurveGestureArea(QQuickItem* parent = nullptr);

    [[nodiscard]] FanCurveChartModel* chart() const { return m_chart; }
    void setChart(FanCurveChartModel* chart);

    [[nodiscard]] bool isHovered() const { return m_isHovered; }
    /// Where it was last, in this item.
    [[nodiscard]] QPointF pointer() const { return m_pointer; }

Q_SIGNALS:
    void chartChanged();
    void hoveredChanged();
    void pointerChanged();
    /// The pointer works on this point; the keyboard should, too.
    void pointPressed(int index);

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    struct Press {
        int point = -1;       ///< -1 for the empty plot
        QPointF position;     ///< in this item
        bool moves = false;   ///< far enough to be no click any more
        bool deletes = false; ///< the second of a double click
        bool isTouch = false;
    };

    [[nodiscard]] QPointF inPlot(const QPointF& position) const;
    void hover(const QPointF& position);
    void setHovered(bool isHovered);
    void pressPoint(int index);
    void abandon();
    void openMenuByHolding();
    void updateCursor();

    QPointer<FanCurveChartModel> m_chart;
    std::optional<Press> m_press;
    /// The point of the click before; a double click is meant for a point only if both hit it.
    int m_clickedPoint = -1;
    QTimer m_hold;
    bool m_isHovered = false;
    QPointF m_pointer;
};

} // namespace kestrowind
