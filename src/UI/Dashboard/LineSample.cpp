#include "UI/Dashboard/LineSample.h"

#include "Core/AssignIfChanged.h"
#include "UI/Dashboard/LineChartPainter.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QPainter>
#include <QPen>
#include <QQmlEngine>

namespace kestrowind {
namespace {

/// The line's frame is 18 by 2 points; its round ends stand out of it by half its width.
constexpr QSizeF lineFrame(18, 2);
constexpr double lineEnd = 1;

} // namespace

LineSample::LineSample(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setImplicitSize(lineFrame.width() + 2 * lineEnd, lineFrame.height());
}

void LineSample::setDashed(bool isDashed) {
    if (!assignIfChanged(m_isDashed, isDashed))
        return;
    update();
    Q_EMIT isDashedChanged();
}

void LineSample::paint(QPainter* painter) {
    const ColorScheme scheme = SceneAppearance::of(*qmlEngine(this)).colorScheme();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(LineChartPainter::pen(LineChart::Ink::foreground, m_isDashed, scheme));
    painter->drawLine(QPointF(lineEnd, height() / 2), QPointF(width() - lineEnd, height() / 2));
}

void LineSample::componentComplete() {
    QQuickPaintedItem::componentComplete();
    connect(&SceneAppearance::of(*qmlEngine(this)), &SceneAppearance::colorSchemeChanged, this,
            [this] { update(); });
}

} // namespace kestrowind
