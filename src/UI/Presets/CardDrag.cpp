#include "UI/Presets/CardDrag.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/DesktopCompositing.h"

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QQuickWindow>

namespace kestrowind {

QPixmap CardDrag::picture(const QQuickItem& card, double cornerRadius) {
    QQuickWindow* window = card.window();
    if (!window)
        return {};
    const QImage scene = window->grabWindow();
    const double scale = scene.devicePixelRatio();
    const QRectF area = card.mapRectToScene(card.boundingRect());
    const QPixmap square = QPixmap::fromImage(
        scene.copy(QRectF(area.topLeft() * scale, area.size() * scale).toRect()));
    QPixmap rounded(square.size());
    rounded.setDevicePixelRatio(scale);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(QPointF(), rounded.deviceIndependentSize()), cornerRadius,
                            cornerRadius);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.drawPixmap(QPointF(), square);
    if (!isDesktopComposited()) {
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(rounded.rect(), window->color());
    }
    return rounded;
}

void CardDrag::start(QQuickItem* card, double cornerRadius, const QString& text,
                     const QPointF& grabbedAt) {
    if (!card || m_isDragging)
        return;
    const QPixmap carried = picture(*card, cornerRadius);
    setDragging(true);
    // Outside of the handler of the pointer's event, since a drag is an event loop of its own.
    const auto run = [self = QPointer(this), carried, text, grabbedAt] {
        if (QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
            // Not this object's: the section, and this with it, may go while the loop runs.
            auto* drag = new QDrag(qGuiApp);
            auto* payload = new QMimeData;
            payload->setText(text);
            drag->setMimeData(payload);
            drag->setPixmap(carried);
            drag->setHotSpot(grabbedAt.toPoint());
            drag->exec(Qt::MoveAction);
        }
        if (self)
            self->setDragging(false);
    };
    QMetaObject::invokeMethod(qGuiApp, run, Qt::QueuedConnection);
}

void CardDrag::setDragging(bool isDragging) {
    if (assignIfChanged(m_isDragging, isDragging))
        Q_EMIT isDraggingChanged();
}

} // namespace kestrowind
