#include "UI/MainWindow/SoftShadow.h"

#include "Core/AssignIfChanged.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

/// How far a point lies outside a capsule; negative inside.
double distanceToCapsule(QPointF point, const QRectF& capsule) {
    const double radius = std::min(capsule.width(), capsule.height()) / 2;
    const QPointF fromCenter = point - capsule.center();
    const double x = std::max(std::abs(fromCenter.x()) - (capsule.width() / 2 - radius), 0.0);
    const double y = std::max(std::abs(fromCenter.y()) - (capsule.height() / 2 - radius), 0.0);
    return std::hypot(x, y) - radius;
}

} // namespace

SoftShadow::SoftShadow(QQuickItem* parent)
    : QQuickPaintedItem(parent) {}

void SoftShadow::setBlurRadius(double radius) {
    if (!assignIfChanged(m_blurRadius, radius))
        return;
    update();
    Q_EMIT blurRadiusChanged();
}

void SoftShadow::setOffset(double offset) {
    if (!assignIfChanged(m_offset, offset))
        return;
    update();
    Q_EMIT offsetChanged();
}

void SoftShadow::paint(QPainter* painter) {
    // The item has room for the blur at every side of the capsule.
    const double room = 2 * m_blurRadius;
    const QRectF capsule = boundingRect().adjusted(room, room, -room, -room);
    const double scale = painter->device()->devicePixelRatioF();
    QImage image((boundingRect().size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    // A blurred half-plane is the error function of the distance to its edge, and a capsule is
    // nearly one everywhere.
    const double spread = m_blurRadius / 2 * std::sqrt(2.0);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QPointF point((x + 0.5) / scale, (y + 0.5) / scale);
            const double shadow =
                std::erfc(distanceToCapsule(point - QPointF(0, m_offset), capsule) / spread) / 2;
            const double outside =
                std::clamp(distanceToCapsule(point, capsule) * scale + 0.5, 0.0, 1.0);
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(255 * shadow * outside)));
        }
    }
    painter->drawImage(boundingRect(), image);
}

} // namespace kestrowind
