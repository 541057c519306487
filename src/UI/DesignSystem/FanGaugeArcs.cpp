#include "UI/DesignSystem/FanGaugeArcs.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QImage>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

QEasingCurve easeInEaseOut() {
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
    return curve;
}

} // namespace

FanGaugeArcs::FanGaugeArcs(QQuickItem* parent)
    : QQuickItem(parent)
    , m_visibility(*this) {
    setFlag(ItemHasContents);
    m_movement.setEasingCurve(easeInEaseOut());
    connect(&m_movement, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { display(value.toDouble()); });
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &FanGaugeArcs::stopUnseen);
}

void FanGaugeArcs::setDiameter(double diameter) {
    if (!assignIfChanged(m_look.diameter, diameter))
        return;
    setImplicitSize(diameter, diameter);
    update();
    Q_EMIT diameterChanged();
}

void FanGaugeArcs::setLineWidth(double lineWidth) {
    if (!assignIfChanged(m_look.lineWidth, lineWidth))
        return;
    update();
    Q_EMIT lineWidthChanged();
}

void FanGaugeArcs::setGapDegrees(double gapDegrees) {
    if (!assignIfChanged(m_look.gapDegrees, gapDegrees))
        return;
    update();
    Q_EMIT gapDegreesChanged();
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

void FanGaugeArcs::componentComplete() {
    QQuickItem::componentComplete();
    adoptScheme();
    if (QQmlEngine* engine = qmlEngine(this)) {
        connect(&SceneAppearance::of(*engine), &SceneAppearance::colorSchemeChanged, this,
                &FanGaugeArcs::adoptScheme);
    }
}

void FanGaugeArcs::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged)
        update();
    QQuickItem::itemChange(change, data);
}

QSGNode* FanGaugeArcs::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    auto* image = static_cast<QSGImageNode*>(node);
    if (m_look.diameter <= 0) {
        delete image;
        return nullptr;
    }
    if (!image) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Linear);
    }

    // Whole device pixels around the enlarged bounds, so that the picture is not resampled.
    const double scale = window()->effectiveDevicePixelRatio();
    const QRectF bounds = FanGauge::enlargedBounds(m_look);
    const auto outwards = [scale](double edge) { return std::floor(edge * scale) / scale; };
    const QPointF corner(outwards(bounds.left()), outwards(bounds.top()));
    const QSize pixels(static_cast<int>(std::ceil((bounds.right() - corner.x()) * scale)),
                       static_cast<int>(std::ceil((bounds.bottom() - corner.y()) * scale)));

    QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    painter.translate(-corner);
    FanGauge::paint(painter, m_look, m_displayedFraction);
    painter.end();

    image->setTexture(
        window()->createTextureFromImage(picture, QQuickWindow::TextureHasAlphaChannel));
    image->setSourceRect(QRectF(QPointF(), QSizeF(pixels)));
    image->setRect(QRectF(corner, QSizeF(pixels) / scale));
    return image;
}

void FanGaugeArcs::display(double fraction) {
    if (assignIfChanged(m_displayedFraction, fraction))
        update();
}

void FanGaugeArcs::adoptScheme() {
    QQmlEngine* engine = qmlEngine(this);
    if (engine && assignIfChanged(m_look.scheme, SceneAppearance::of(*engine).colorScheme()))
        update();
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
