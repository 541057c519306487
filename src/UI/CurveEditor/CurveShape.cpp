#include "UI/CurveEditor/CurveShape.h"

#include "Core/AssignIfChanged.h"
#include "UI/CurveEditor/CurveOutline.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/Spring.h"

#include <QLinearGradient>
#include <QPainter>

namespace kestrowind {
namespace {

constexpr double lineWidth = 2.5;

/// Air is cyan where there is little of it and blue where there is much.
QLinearGradient air(const QRectF& plot, double opacityAbove, double opacityBelow) {
    const QGradientStops stops = Palette::fanGradientStops();
    QLinearGradient gradient(plot.bottomLeft(), plot.topLeft());
    gradient.setColorAt(0, Palette::faded(stops.first().second, opacityBelow));
    gradient.setColorAt(1, Palette::faded(stops.last().second, opacityAbove));
    return gradient;
}

} // namespace

CurveShape::CurveShape(QQuickItem* parent)
    : PaintedItem(parent) {
    const SpringTiming spring = Springs::edit();
    m_movement.setStartValue(0.0);
    m_movement.setEndValue(1.0);
    m_movement.setDuration(spring.duration);
    m_movement.setEasingCurve(spring.easing);
    connect(&m_movement, &QVariantAnimation::valueChanged, this, [this](const QVariant& progress) {
        setOutline(CurveOutline::blended(m_start, m_end, progress.toDouble()));
    });
    connect(&m_movement, &QVariantAnimation::finished, this, [this] { setOutline(m_end); });
}

void CurveShape::setChart(FanCurveChartModel* chart) {
    if (!assignIfChanged(m_chart, chart))
        return;
    connect(chart, &FanCurveChartModel::curveChanged, this, &CurveShape::takeCurve);
    connect(chart, &FanCurveChartModel::plotChanged, this, &CurveShape::repaint);
    setOutline(CurveOutline::of(chart->curve()));
    Q_EMIT lookChanged();
}

void CurveShape::takeCurve() {
    m_start = m_outline;
    m_end = CurveOutline::of(m_chart->curve());
    m_movement.stop();
    if (m_chart->motion() == FanCurveChartModel::Motion::Edit && isVisible() && window())
        m_movement.start();
    else
        setOutline(m_end);
}

void CurveShape::setOutline(const QPolygonF& outline) {
    if (assignIfChanged(m_outline, outline))
        repaint();
}

void CurveShape::paint(QPainter& painter) {
    if (!m_chart || m_outline.isEmpty())
        return;
    const CurvePlotGeometry geometry = m_chart->geometry();
    const QRectF plot({0, 0}, geometry.plotSize);
    if (plot.isEmpty())
        return;
    const bool isDark = colorScheme() == ColorScheme::dark;
    painter.translate(bleed(), bleed());
    const QPolygonF line = geometry.line(m_outline);

    // Stored points may lie outside of the axes.
    painter.setClipRect(plot);
    painter.setPen(Qt::NoPen);
    painter.setBrush(air(plot, isDark ? 0.42 : 0.36, isDark ? 0.06 : 0.05));
    painter.drawPolygon(geometry.area(line));

    painter.setClipRect(plot.adjusted(-bleed(), -bleed(), bleed(), bleed()));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(air(plot, 1, 1), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
}

} // namespace kestrowind
