#include "UI/DesignSystem/FanGaugeArcs.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/Palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrowind {
namespace {

/// How far a tick reaches inwards and outwards from the ring's middle line, in points.
constexpr double tickReach = 6.5;
/// The same of the mark where the fan is to be.
constexpr double targetReach = 5;

/// The left end of the opening at the bottom, in degrees as painters have them: 0 at three o'clock,
/// counter-clockwise.
double startAngle(double gapDegrees) {
    return -90 - gapDegrees / 2;
}

QLinearGradient gradient(const QPointF& from, const QPointF& to, const QGradientStops& stops) {
    QLinearGradient gradient(from, to);
    gradient.setStops(stops);
    return gradient;
}

QEasingCurve easeInEaseOut() {
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
    return curve;
}

} // namespace

FanGaugeArcs::FanGaugeArcs(QQuickItem* parent)
    : PaintedItem(parent)
    , m_visibility(*this) {
    connect(this, &FanGaugeArcs::lookChanged, this,
            [this] { setImplicitSize(m_diameter, m_diameter); });
    m_movement.setEasingCurve(easeInEaseOut());
    connect(&m_movement, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { display(value.toDouble()); });
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &FanGaugeArcs::stopUnseen);
}

void FanGaugeArcs::setFraction(double fraction) {
    const double clamped = fraction > 0 ? std::min(fraction, 1.0) : 0;
    if (!assignIfChanged(m_fraction, clamped))
        return;
    m_movement.stop();
    if (mayMove()) {
        m_movement.setStartValue(m_displayedFraction);
        m_movement.setEndValue(m_fraction);
        m_movement.setDuration(static_cast<int>(std::lround(m_animationDuration * 1000)));
        m_movement.start();
    } else {
        display(m_fraction);
    }
    Q_EMIT fractionChanged();
}

void FanGaugeArcs::setAnimationDuration(double seconds) {
    if (assignIfChanged(m_animationDuration, std::max(seconds, 0.0)))
        Q_EMIT animationDurationChanged();
}

void FanGaugeArcs::setActive(bool active) {
    if (!assignIfChanged(m_isActive, active))
        return;
    stopUnseen();
    Q_EMIT activeChanged();
}

QRectF FanGaugeArcs::paintedBounds() const {
    return QRectF(0, 0, m_diameter, m_diameter)
        .adjusted(-m_lineWidth, -m_lineWidth, m_lineWidth, m_lineWidth);
}

void FanGaugeArcs::paint(QPainter& painter) {
    const QRectF ring(0, 0, m_diameter, m_diameter);
    const double sweep = 360 - m_gapDegrees;
    const double start = startAngle(m_gapDegrees);
    const auto stroke = [&](double fraction, const QBrush& brush) {
        QPainterPath arc;
        arc.arcMoveTo(ring, start);
        arc.arcTo(ring, start, -sweep * fraction);
        painter.strokePath(arc, QPen(brush, m_lineWidth, Qt::SolidLine, Qt::RoundCap));
    };
    const QRectF bounds = paintedBounds();
    const QColor ink = colorScheme() == ColorScheme::dark ? Qt::white : Qt::black;
    stroke(1, gradient({bounds.center().x(), bounds.bottom()}, {bounds.center().x(), bounds.top()},
                       {{0.0, Palette::faded(ink, 0.16)}, {1.0, Palette::faded(ink, 0.07)}}));
    if (m_displayedFraction > 0) {
        stroke(m_displayedFraction,
               gradient(bounds.bottomRight(), bounds.topLeft(), Palette::fanGradientStops()));
    }

    painter.setPen(QPen(Palette::faded(ink, 0.35), m_diameter * 0.003 * std::numbers::pi,
                        Qt::SolidLine, Qt::FlatCap));
    painter.translate(ring.center());
    if (m_target >= 0)
        paintTarget(painter, sweep * std::min(m_target, 1.0) - start);
    for (const double fraction : {0.25, 0.5, 0.75}) {
        painter.save();
        painter.rotate(sweep * fraction - start);
        painter.drawLine(QPointF(m_diameter / 2 - tickReach, 0),
                         QPointF(m_diameter / 2 + tickReach, 0));
        painter.restore();
    }
}

/// A bar across the ring, set off from the filled arc, which it may lie on.
void FanGaugeArcs::paintTarget(QPainter& painter, double degrees) const {
    const bool isDark = colorScheme() == ColorScheme::dark;
    painter.save();
    painter.rotate(degrees);
    const QLineF bar(m_diameter / 2 - targetReach, 0, m_diameter / 2 + targetReach, 0);
    painter.setPen(QPen(isDark ? Qt::black : Qt::white, 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(bar);
    painter.setPen(QPen(isDark ? Qt::white : Qt::black, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(bar);
    painter.restore();
}

void FanGaugeArcs::display(double fraction) {
    if (assignIfChanged(m_displayedFraction, fraction))
        repaint();
}

void FanGaugeArcs::stopUnseen() {
    if (mayMove())
        return;
    m_movement.stop();
    display(m_fraction);
}

bool FanGaugeArcs::mayMove() const {
    return m_isActive && isComponentComplete() && m_visibility.isSeen() && m_animationDuration > 0;
}

} // namespace kestrowind
