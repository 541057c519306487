#include "UI/Dashboard/LineSample.h"

#include "UI/Dashboard/LineChartPainter.h"

#include <QPainter>
#include <QPen>

namespace kestrowind {
namespace {

/// The line's frame is 18 by 2 points; its round ends stand out of it by half its width.
constexpr QSizeF lineFrame(18, 2);
constexpr double lineEnd = 1;

} // namespace

LineSample::LineSample(QQuickItem* parent)
    : PaintedItem(parent) {
    setImplicitSize(lineFrame.width() + 2 * lineEnd, lineFrame.height());
}

void LineSample::paint(QPainter& painter) {
    painter.setPen(LineChartPainter::pen(LineChart::Ink::foreground, m_isDashed, colorScheme()));
    painter.drawLine(QPointF(lineEnd, height() / 2), QPointF(width() - lineEnd, height() / 2));
}

} // namespace kestrowind
