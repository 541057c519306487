#pragma once

#include "Platform/SystemAppearance.h"

#include <QColor>
#include <QQuickItem>

class QPainter;

namespace kestrowind {

/// What lies under a card: a translucent rounded rectangle, lit along its upper inner edge and
/// shaded along the lower one. The picture is as narrow as its corners and stretched between them,
/// so that a wide card costs little memory.
class CardBackground : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY
                   cornerRadiusChanged FINAL)
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged FINAL)
    QML_ELEMENT

public:
    explicit CardBackground(QQuickItem* parent = nullptr);

    /// No more than half of the shorter side is used: a large value makes a capsule.
    [[nodiscard]] double cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(double cornerRadius);
    /// A translucent colour over the glass; none by default.
    [[nodiscard]] QColor tint() const { return m_tint; }
    void setTint(const QColor& tint);

    struct Look {
        double cornerRadius = 0;
        QColor tint = Qt::transparent;
        ColorScheme scheme = ColorScheme::light;
    };
    static void paint(QPainter& painter, const QRectF& rectangle, const Look& look);

Q_SIGNALS:
    void cornerRadiusChanged();
    void tintChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    double m_cornerRadius = 0;
    QColor m_tint = Qt::transparent;
    bool m_isPictureStale = true;
    void redraw();
};

} // namespace kestrowind
