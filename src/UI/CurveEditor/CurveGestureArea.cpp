#include "UI/CurveEditor/CurveGestureArea.h"

#include "Core/AssignIfChanged.h"

#include <QCursor>
#include <QGuiApplication>
#include <QLineF>
#include <QQuickWindow>
#include <QStyleHints>

#include <utility>

namespace kestrowind {
namespace {

/// A mouse that moved this far drags, in points: a degree or two in a chart of usual size, so that
/// a point can be moved by one.
constexpr double mouseDragDistance = 3;
constexpr double touchDragDistance = 8;

} // namespace

CurveGestureArea::CurveGestureArea(QQuickItem* parent)
    : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptHoverEvents(true);
    m_hold.setSingleShot(true);
    m_hold.setInterval(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    connect(&m_hold, &QTimer::timeout, this, &CurveGestureArea::openMenuByHolding);
}

void CurveGestureArea::setChart(FanCurveChartModel* chart) {
    if (!assignIfChanged(m_chart, chart))
        return;
    connect(chart, &FanCurveChartModel::marksChanged, this, &CurveGestureArea::updateCursor);
    connect(chart, &FanCurveChartModel::draggedPointChanged, this, &CurveGestureArea::updateCursor);
    chart->setSize(size());
    Q_EMIT chartChanged();
}

void CurveGestureArea::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_chart)
        m_chart->setSize(newGeometry.size());
}

void CurveGestureArea::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged && !data.boolValue) {
        abandon();
    } else if (change == ItemSceneChange) {
        abandon();
        // A hidden window takes no pointer away: its items would wait for a release for ever.
        if (data.window) {
            connect(data.window, &QWindow::visibleChanged, this, [this](bool isVisible) {
                if (!isVisible)
                    abandon();
            });
        }
    }
}

QPointF CurveGestureArea::inPlot(const QPointF& position) const {
    return position - m_chart->plot().topLeft();
}

void CurveGestureArea::hover(const QPointF& position) {
    if (!m_chart)
        return;
    if (assignIfChanged(m_pointer, position))
        Q_EMIT pointerChanged();
    // Handles at the plot's edge reach beyond it; what a click would add does not.
    const bool isOver =
        m_chart->plot().contains(position) || m_chart->pointAt(inPlot(position)) >= 0;
    m_chart->setHoverLocation(isOver ? std::optional(inPlot(position)) : std::nullopt);
}

void CurveGestureArea::setHovered(bool isHovered) {
    if (assignIfChanged(m_isHovered, isHovered))
        Q_EMIT hoveredChanged();
}

void CurveGestureArea::pressPoint(int index) {
    m_chart->press(index);
    Q_EMIT pointPressed(index);
}

void CurveGestureArea::hoverEnterEvent(QHoverEvent* event) {
    setHovered(true);
    hover(event->position());
    // What lies around the chart may want to know of it, too.
    event->ignore();
}

void CurveGestureArea::hoverMoveEvent(QHoverEvent* event) {
    hover(event->position());
    event->ignore();
}

void CurveGestureArea::hoverLeaveEvent(QHoverEvent*) {
    setHovered(false);
    if (m_chart)
        m_chart->setHoverLocation(std::nullopt);
}

void CurveGestureArea::mousePressEvent(QMouseEvent* event) {
    if (!m_chart || !m_chart->isEditable()) {
        event->ignore();
        return;
    }
    if (m_press) // another button in the middle of a gesture
        return;
    const int point = m_chart->pointAt(inPlot(event->position()));
    if (event->button() == Qt::RightButton) {
        event->setAccepted(point >= 0);
        if (point >= 0) {
            pressPoint(point);
            m_chart->requestContextMenu(point);
        }
        return;
    }
    event->setAccepted(point >= 0 || m_chart->plot().contains(event->position()));
    if (!event->isAccepted())
        return;
    m_press = Press{.point = point,
                    .position = event->position(),
                    .isTouch = event->device()->type() == QInputDevice::DeviceType::TouchScreen};
    if (point < 0)
        return;
    pressPoint(point);
    if (m_press->isTouch)
        m_hold.start();
}

void CurveGestureArea::mouseMoveEvent(QMouseEvent* event) {
    if (!m_press || !m_chart)
        return;
    if (!m_press->isTouch)
        hover(event->position());
    const double distance = m_press->isTouch ? touchDragDistance : mouseDragDistance;
    if (!m_press->moves) {
        if (QLineF(m_press->position, event->position()).length() < distance)
            return;
        m_press->moves = true;
        m_hold.stop();
    } else if (m_press->point >= 0 && m_chart->draggedPoint() != m_press->point) {
        // It was ended from elsewhere: the rest of the movement means nothing.
        return;
    }
    if (m_press->point >= 0)
        m_chart->drag(m_press->point, inPlot(event->position()));
}

void CurveGestureArea::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_hold.stop();
    const auto press = std::exchange(m_press, std::nullopt);
    if (!press || !m_chart)
        return;
    m_clickedPoint = press->moves ? -1 : press->point;
    if (press->moves)
        m_chart->release(inPlot(event->position()));
    else if (press->deletes)
        m_chart->deletePoint(press->point);
    else if (press->point < 0 && m_chart->click(inPlot(event->position())))
        pressPoint(m_chart->currentPoint());
    if (press->isTouch)
        m_chart->setHoverLocation(std::nullopt);
    else
        hover(event->position());
}

void CurveGestureArea::mouseDoubleClickEvent(QMouseEvent* event) {
    // Comes after the second press. That may become a drag yet: its release deletes the point.
    if (m_press && event->button() == Qt::LeftButton)
        m_press->deletes = m_press->point >= 0 && m_press->point == m_clickedPoint;
}

void CurveGestureArea::mouseUngrabEvent() {
    // Also told at the end of every gesture.
    if (m_press)
        abandon();
}

void CurveGestureArea::abandon() {
    m_hold.stop();
    m_press.reset();
    m_clickedPoint = -1;
    if (!m_chart)
        return;
    m_chart->cancelDrag();
    if (!isVisible() || !window() || !window()->isVisible())
        m_chart->setHoverLocation(std::nullopt);
}

void CurveGestureArea::openMenuByHolding() {
    if (!m_press || !m_chart)
        return;
    const int point = m_press->point;
    m_press.reset();
    m_chart->requestContextMenu(point);
}

void CurveGestureArea::updateCursor() {
    if (m_chart->draggedPoint() >= 0)
        setCursor(Qt::ClosedHandCursor);
    else if (m_chart->hoveredPoint() >= 0)
        setCursor(Qt::OpenHandCursor);
    else if (m_chart->ghost().isShown)
        setCursor(Qt::CrossCursor);
    else
        unsetCursor();
}

} // namespace kestrowind
