#include "UI/DesignSystem/AcceptKeys.h"

#include <QKeyEvent>

namespace kestrowind {

AcceptKeys::AcceptKeys(QObject* item)
    : QObject(item) {
    item->installEventFilter(this);
}

bool AcceptKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Q_EMIT pressed();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kestrowind
