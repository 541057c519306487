#include "UI/DesignSystem/CardBackground.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QQmlEngine>
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

CardBackground::CardBackground(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void CardBackground::setCornerRadius(double cornerRadius) {
    if (!assignIfChanged(m_cornerRadius, std::max(cornerRadius, 0.0)))
        return;
    redraw();
    Q_EMIT cornerRadiusChanged();
}

void CardBackground::setTint(const QColor& tint) {
    if (!assignIfChanged(m_tint, tint))
        return;
    redraw();
    Q_EMIT tintChanged();
}

void CardBackground::paint(QPainter& painter, const QRectF& rectangle, const Look& look) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const QColor& layer : {Palette::color(Palette::Role::cardFill, look.scheme), look.tint}) {
        painter.setBrush(layer);
        painter.drawRoundedRect(rectangle, look.cornerRadius, look.cornerRadius);
    }

    // A pen is centred on its path: half a point in, the one-point border lies inside.
    QLinearGradient border(rectangle.topLeft(), rectangle.bottomLeft());
    border.setStops(Palette::cardBorderStops());
    painter.setPen(QPen(border, 1));
    painter.setBrush(Qt::NoBrush);
    const double inset = std::max(look.cornerRadius - 0.5, 0.0);
    painter.drawRoundedRect(rectangle.adjusted(0.5, 0.5, -0.5, -0.5), inset, inset);
}

void CardBackground::componentComplete() {
    QQuickItem::componentComplete();
    if (QQmlEngine* engine = qmlEngine(this)) {
        connect(&SceneAppearance::of(*engine), &SceneAppearance::colorSchemeChanged, this,
                &CardBackground::redraw);
    }
}

void CardBackground::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged)
        redraw();
    QQuickItem::itemChange(change, data);
}

void CardBackground::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        redraw();
}

QSGNode* CardBackground::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    auto* parts = static_cast<ThreePartNode*>(node);
    if (width() <= 0 || height() <= 0) {
        delete parts;
        return nullptr;
    }
    const bool isNew = !parts;
    if (isNew)
        parts = new ThreePartNode(*window());

    const double scale = window()->effectiveDevicePixelRatio();
    const double radius = std::min({m_cornerRadius, width() / 2, height() / 2});
    const int endPixels = std::min(static_cast<int>(std::ceil(std::max(radius, 1.0) * scale)) + 1,
                                   static_cast<int>(std::floor(width() * scale / 2)));
    if (isNew || m_isPictureStale) {
        m_isPictureStale = false;
        const QSize pixels(2 * endPixels + middlePixels,
                           static_cast<int>(std::lround(height() * scale)));
        QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.scale(scale, scale);
        QQmlEngine* engine = qmlEngine(this);
        paint(painter, QRectF(QPointF(), QSizeF(pixels) / scale),
              {.cornerRadius = radius,
               .tint = m_tint,
               .scheme = engine ? SceneAppearance::of(*engine).colorScheme() : ColorScheme::light});
        painter.end();
        parts->setTexture(std::unique_ptr<QSGTexture>(
            window()->createTextureFromImage(picture, QQuickWindow::TextureHasAlphaChannel)));
    }
    parts->layOut(size(), endPixels, scale);
    return parts;
}

void CardBackground::redraw() {
    m_isPictureStale = true;
    update();
}

} // namespace kestrowind
