#include "UI/DesignSystem/PaintedItem.h"

#include "UI/DesignSystem/SceneAppearance.h"

#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <utility>

namespace kestrowind {

PaintedItem::PaintedItem(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &PaintedItem::lookChanged, this, &PaintedItem::repaint);
}

const SceneAppearance* PaintedItem::appearance() const {
    QQmlEngine* engine = qmlEngine(this);
    return engine ? &SceneAppearance::of(*engine) : nullptr;
}

ColorScheme PaintedItem::colorScheme() const {
    return appearance() ? appearance()->colorScheme() : ColorScheme::light;
}

Palette::Colors PaintedItem::colors() const {
    return Palette::colors(colorScheme(),
                           appearance() ? appearance()->accentColor() : std::nullopt);
}

QRectF PaintedItem::pictureBounds() const {
    const double scale = window()->effectiveDevicePixelRatio();
    const QRectF bounds = paintedBounds();
    const QPointF corner(std::floor(bounds.left() * scale), std::floor(bounds.top() * scale));
    const QSizeF size(std::ceil(bounds.right() * scale) - corner.x(),
                      std::ceil(bounds.bottom() * scale) - corner.y());
    return {corner / scale, size / scale};
}

QImage PaintedItem::takePicture(const QRectF& bounds) {
    m_isPictureStale = false;
    const double scale = window()->effectiveDevicePixelRatio();
    const QSizeF pixels = bounds.size() * scale;
    QImage picture(qRound(pixels.width()), qRound(pixels.height()),
                   QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(-bounds.topLeft());
    paint(painter);
    painter.end();
    picture.setDevicePixelRatio(1);
    return picture;
}

void PaintedItem::repaint() {
    m_isPictureStale = true;
    if (isVisible())
        update();
}

void PaintedItem::componentComplete() {
    QQuickItem::componentComplete();
    if (const SceneAppearance* scene = appearance()) {
        connect(scene, &SceneAppearance::colorSchemeChanged, this, &PaintedItem::repaint);
        connect(scene, &SceneAppearance::accentColorChanged, this, &PaintedItem::repaint);
    }
}

void PaintedItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged)
        repaint();
    else if (change == ItemVisibleHasChanged && data.boolValue && m_isPictureStale)
        update();
    QQuickItem::itemChange(change, data);
}

void PaintedItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaint();
}

QSGNode* PaintedItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
    const QRectF bounds = pictureBounds();
    auto* image = static_cast<QSGImageNode*>(node);
    if (bounds.isEmpty()) {
        delete image;
        return nullptr;
    }
    const bool isNew = !image;
    if (isNew) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Linear);
    }
    if (isNew || m_isPictureStale) {
        const QImage picture = takePicture(bounds);
        image->setTexture(
            window()->createTextureFromImage(picture, QQuickWindow::TextureHasAlphaChannel));
        image->setSourceRect(picture.rect());
        image->setRect(bounds);
    }
    return image;
}

} // namespace kestrowind
