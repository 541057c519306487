#include "UI/Dashboard/ChartReadoutMark.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QPainter>
#include <QQmlEngine>

#include <cmath>

namespace kestrowind {
namespace {

constexpr double dotRadius = 4;
constexpr double dotRim = 2;
constexpr double middle = dotRadius + dotRim + 0.5; ///< of a device pixel: the line is sharp
constexpr float lineOpacity = 0.5F;

} // namespace

ChartReadoutMark::ChartReadoutMark(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setImplicitWidth(2 * middle);
    setVisible(false);
}

void ChartReadoutMark::setReadout(const ChartReadout& readout) {
    if (!assignIfChanged(m_readout, readout))
        return;
    setX(std::floor(readout.x) - std::floor(middle));
    setVisible(readout.isShown);
    update();
    Q_EMIT readoutChanged();
}

void ChartReadoutMark::paint(QPainter* painter) {
    const ColorScheme scheme = SceneAppearance::of(*qmlEngine(this)).colorScheme();
    QColor line = Palette::color(Palette::Role::tertiaryText, scheme);
    line.setAlphaF(line.alphaF() * lineOpacity);
    painter->setPen(QPen(line, 1));
    painter->drawLine(QPointF(middle, m_readout.top), QPointF(middle, m_readout.bottom));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    for (const ChartReadout::Dot& dot : m_readout.dots) {
        painter->setBrush(Palette::color(Palette::Role::popupBackground, scheme));
        painter->drawEllipse(QPointF(middle, dot.y), dotRadius + dotRim, dotRadius + dotRim);
        painter->setBrush(LineChartPainter::color(dot.ink, scheme));
        painter->drawEllipse(QPointF(middle, dot.y), dotRadius, dotRadius);
    }
}

} // namespace kestrowind
