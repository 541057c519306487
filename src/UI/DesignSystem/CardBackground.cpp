#include "UI/DesignSystem/CardBackground.h"

#include "UI/DesignSystem/Palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace kestrowind {
namespace {

/// Device pixels of the picture between its two ends; only the inner ones are stretched, so that
/// filtering never mixes in a corner.
constexpr int middlePixels = 6;

/// The left end, the stretched middle and the right end of one texture.
class ThreePartNode final : public QSGNode {
public:
    explicit ThreePartNode(QQuickWindow& window) {
        for (QSGImageNode*& part : m_parts) {
            part = window.createImageNode();
            part->setFiltering(QSGTexture::Nearest);
            appendChildNode(part);
        }
    }

    void setTexture(std::unique_ptr<QSGTexture> texture) {
        for (QSGImageNode* part : m_parts)
            part->setTexture(texture.get());
        m_texture = std::move(texture);
    }

    /// `endPixels` is the width of an end in device pixels.
    void layOut(const QSizeF& size, int endPixels, double scale) {
        const QSizeF pixels = m_texture->textureSize();
        const double end = endPixels / scale;
        m_parts[0]->setSourceRect(QRectF(0, 0, endPixels, pixels.height()));
        m_parts[0]->setRect(QRectF(0, 0, end, size.height()));
        m_parts[1]->setSourceRect(QRectF(endPixels + 2, 0, middlePixels - 4, pixels.height()));
        m_parts[1]->setRect(QRectF(end, 0, size.width() - 2 * end, size.height()));
        m_parts[2]->setSourceRect(
            QRectF(pixels.width() - endPixels, 0, endPixels, pixels.height()));
        m_parts[2]->setRect(QRectF(size.width() - end, 0, end, size.height()));
    }

private:
    std::array<QSGImageNode*, 3> m_parts = {};
    std::unique_ptr<QSGTexture> m_texture;
};

} // namespace

double CardBackground::radius() const {
    return std::min({m_cornerRadius, width() / 2, height() / 2});
}

int CardBackground::endPixels() const {
    const double scale = window()->effectiveDevicePixelRatio();
    return std::min(static_cast<int>(std::ceil(std::max(radius(), 1.0) * scale)) + 1,
                    static_cast<int>(std::floor(width() * scale / 2)));
}

QRectF CardBackground::paintedBounds() const {
    const double scale = window()->effectiveDevicePixelRatio();
    return {0, 0, (2 * endPixels() + middlePixels) / scale, std::round(height() * scale) / scale};
}

void CardBackground::paint(QPainter& painter) {
    const QRectF rectangle = pictureBounds();
    painter.setPen(Qt::NoPen);
    for (const QColor& layer : {colors().cardFill, m_tint}) {
        painter.setBrush(layer);
        painter.drawRoundedRect(rectangle, radius(), radius());
    }

    // A pen is centred on its path: half a point in, the one-point border lies inside.
    QLinearGradient border(rectangle.topLeft(), rectangle.bottomLeft());
    border.setStops(Palette::cardBorderStops());
    painter.setPen(QPen(border, 1));
    painter.setBrush(Qt::NoBrush);
    const double inset = std::max(radius() - 0.5, 0.0);
    painter.drawRoundedRect(rectangle.adjusted(0.5, 0.5, -0.5, -0.5), inset, inset);
}

QSGNode* CardBackground::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
    auto* parts = static_cast<ThreePartNode*>(node);
    if (width() <= 0 || height() <= 0) {
        delete parts;
        return nullptr;
    }
    const bool isNew = !parts;
    if (isNew)
        parts = new ThreePartNode(*window());
    if (isNew || isPictureStale()) {
        parts->setTexture(std::unique_ptr<QSGTexture>(window()->createTextureFromImage(
            takePicture(pictureBounds()), QQuickWindow::TextureHasAlphaChannel)));
        parts->layOut(size(), endPixels(), window()->effectiveDevicePixelRatio());
    }
    return parts;
}

} // namespace kestrowind
