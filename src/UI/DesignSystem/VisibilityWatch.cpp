#include "UI/DesignSystem/VisibilityWatch.h"

#include "Core/AssignIfChanged.h"

#include <QEvent>
#include <QQuickItem>
#include <QQuickWindow>

namespace kestrowind {

VisibilityWatch::VisibilityWatch(QQuickItem& item)
    : m_item(item) {
    connect(&item, &QQuickItem::visibleChanged, this, &VisibilityWatch::reconsider);
    connect(&item, &QQuickItem::windowChanged, this, &VisibilityWatch::follow);
    follow(item.window());
}

bool VisibilityWatch::eventFilter(QObject* watched, QEvent* event) {
    // The window learns of its exposure from this very event: ask it afterwards.
    if (event->type() == QEvent::Expose)
        QMetaObject::invokeMethod(this, &VisibilityWatch::reconsider, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void VisibilityWatch::follow(QQuickWindow* window) {
    if (m_window) {
        m_window->removeEventFilter(this);
        m_window->disconnect(this);
    }
    m_window = window;
    if (window) {
        window->installEventFilter(this);
        connect(window, &QWindow::visibilityChanged, this, &VisibilityWatch::reconsider);
    }
    reconsider();
}

void VisibilityWatch::reconsider() {
    const bool isSeen = m_item.isVisible() && m_window && m_window->isExposed() &&
                        m_window->isVisible() && m_window->visibility() != QWindow::Minimized;
    if (assignIfChanged(m_isSeen, isSeen))
        Q_EMIT isSeenChanged();
}

} // namespace kestrowind
