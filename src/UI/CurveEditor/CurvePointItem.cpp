#include "UI/CurveEditor/CurvePointItem.h"

#include "Core/AssignIfChanged.h"

namespace kestrowind {

void CurvePointItem::setChart(FanCurveChartModel* chart) {
    if (assignIfChanged(m_chart, chart))
        Q_EMIT chartChanged();
}

void CurvePointItem::setIndex(int index) {
    if (assignIfChanged(m_index, index))
        Q_EMIT indexChanged();
}

void CurvePointItem::setRow(const CurvePointRow& row) {
    const double before = value();
    if (!assignIfChanged(m_row, row))
        return;
    Q_EMIT rowChanged();
    if (value() != before)
        Q_EMIT valueChanged();
}

void CurvePointItem::requestValue(double percent) {
    if (m_chart)
        m_chart->setPercent(m_index, percent);
}

Qt::FocusReason CurvePointItem::focusReason() const {
    return m_chart && m_chart->hasKeyboardFocus() ? Qt::TabFocusReason : Qt::MouseFocusReason;
}

void CurvePointItem::focusInEvent(QFocusEvent* event) {
    QQuickItem::focusInEvent(event);
    if (m_chart &&
        (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason))
        m_chart->setHasKeyboardFocus(true);
}

void CurvePointItem::keyPressEvent(QKeyEvent* event) {
    if (m_chart && m_chart->draggedPoint() < 0)
        m_chart->setHasKeyboardFocus(true);
    event->setAccepted(m_chart && m_chart->pressKey(m_index, event->key(), event->modifiers()));
}

} // namespace kestrowind
