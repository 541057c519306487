#include "UI/Dashboard/ChartReadoutMark.h"

#include <QPainter>

#include <cmath>

namespace kestrowind {
namespace {

constexpr double dotRadius = 4;
constexpr double dotRim = 2;
constexpr double middle = dotRadius + dotRim + 0.5; ///< of a device pixel: the line is sharp
constexpr double lineOpacity = 0.5;

} // namespace

ChartReadoutMark::ChartReadoutMark(QQuickItem* parent)
    : PaintedItem(parent) {
    setImplicitWidth(2 * middle);
    connect(this, &ChartReadoutMark::lookChanged, this, &ChartReadoutMark::place);
    place();
}

void ChartReadoutMark::place() {
    setX(std::floor(m_readout.x) - std::floor(middle));
    setVisible(m_readout.isShown);
}

void ChartReadoutMark::paint(QPainter& painter) {
    painter.setPen(QPen(Palette::faded(colors().tertiaryText, lineOpacity), 1));
    painter.drawLine(QPointF(middle, m_readout.top), QPointF(middle, m_readout.bottom));
    painter.setPen(Qt::NoPen);
    for (const ChartReadout::Dot& dot : m_readout.dots) {
        painter.setBrush(colors().popupBackground);
        painter.drawEllipse(QPointF(middle, dot.y), dotRadius + dotRim, dotRadius + dotRim);
        painter.setBrush(LineChartPainter::color(dot.ink, colorScheme()));
        painter.drawEllipse(QPointF(middle, dot.y), dotRadius, dotRadius);
    }
}

} // namespace kestrowind
