#include "UI/Presets/CardDrag.h"

#include "Core/AssignIfChanged.h"

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QQuickWindow>

namespace kestrowind {

QPixmap CardDrag::picture(const QQuickItem& card) {
    QQuickWindow* window = card.window();
    if (!window)
        return {};
    const QImage scene = window->grabWindow();
    const double scale = scene.devicePixelRatio();
    const QRectF area = card.mapRectToScene(card.boundingRect());
    return QPixmap::fromImage(
        scene.copy(QRectF(area.topLeft() * scale, area.size() * scale).toRect()));
}

void CardDrag::start(QQuickItem* card, const QString& text, const QPointF& grabbedAt) {
    if (!card || m_isDragging)
        return;
    const QPixmap carried = picture(*card);
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
