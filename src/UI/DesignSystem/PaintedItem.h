#pragma once

#include "UI/DesignSystem/Palette.h"

#include <QImage>
#include <QQuickItem>

class QPainter;

namespace kestrowind {

class SceneAppearance;

/// An item that paints itself into a picture: anew for another size, device scale, colour scheme or
/// accent and when its look changes, and not while it is invisible. A subclass paints, and names
/// lookChanged as the signal of each property that its picture depends on; they share it, so that
/// none of them can be bound to another one of the same item. It derives from
/// `kestrowind::PaintedItem` in full: Qt 6.4's linter knows a base by that name alone.
class PaintedItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("paints nothing by itself")

public:
    explicit PaintedItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void lookChanged();

protected:
    /// In the item's coordinates, antialiased.
    virtual void paint(QPainter& painter) = 0;
    /// What paint() reaches, in the item's coordinates.
    [[nodiscard]] virtual QRectF paintedBounds() const { return boundingRect(); }

    /// The scene's; light for an item that no QML engine has made.
    [[nodiscard]] ColorScheme colorScheme() const;
    /// In the scene's scheme and accent.
    [[nodiscard]] Palette::Colors colors() const;

    /// The bounds in whole device pixels, so that the picture is not resampled.
    [[nodiscard]] QRectF pictureBounds() const;
    /// What fills these bounds; whether it is another one than before is forgotten.
    [[nodiscard]] QImage takePicture(const QRectF& bounds);
    [[nodiscard]] bool isPictureStale() const { return m_isPictureStale; }
    void repaint();

    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    [[nodiscard]] const SceneAppearance* appearance() const;

    bool m_isPictureStale = true;
};

} // namespace kestrowind
