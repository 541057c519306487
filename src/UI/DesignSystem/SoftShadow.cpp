#include "UI/DesignSystem/SoftShadow.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

/// How far a point lies outside a rounded rectangle; negative inside.
double distanceToRectangle(QPointF point, const QRectF& rectangle, double radius) {
    const QPointF fromCenter = point - rectangle.center();
    const double x = std::abs(fromCenter.x()) - (rectangle.width() / 2 - radius);
    const double y = std::abs(fromCenter.y()) - (rectangle.height() / 2 - radius);
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
}

} // namespace

void SoftShadow::paint(QPainter& painter) {
    const double room = 2 * m_blurRadius;
    const QRectF caster = boundingRect().adjusted(room, room, -room, -room);
    const double radius = std::min({m_cornerRadius, caster.width() / 2, caster.height() / 2});
    const double scale = painter.device()->devicePixelRatioF();
    QImage image((boundingRect().size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    // A blurred half-plane is the error function of the distance to its edge, and what casts the
    // shadow is nearly one everywhere.
    const double spread = m_blurRadius / 2 * std::sqrt(2.0);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QPointF point((x + 0.5) / scale, (y + 0.5) / scale);
            const double outside =
                std::clamp(distanceToRectangle(point, caster, radius) * scale + 0.5, 0.0, 1.0);
            // Most of a card's shadow lies under the card.
            if (outside <= 0) {
                line[x] = 0;
                continue;
            }
            const double shadow =
                std::erfc(distanceToRectangle(point - QPointF(0, m_offset), caster, radius) /
                          spread) /
                2;
            QColor color = m_color;
            color.setAlphaF(static_cast<float>(shadow * outside) * m_color.alphaF());
            line[x] = qPremultiply(color.rgba());
        }
    }
    painter.drawImage(boundingRect(), image);
}

} // namespace kestrowind
