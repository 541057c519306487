#include "UI/DesignSystem/VisibilityWatch.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/WindowCover.h"

#include <QEvent>
#include <QQuickItem>
#include <QQuickWindow>

namespace kestrowind {

void VisibilityWatch::watch(QQuickItem* item) {
    if (item == m_item)
        return;
    if (m_item)
        m_item->disconnect(this);
    m_item = item;
    if (item) {
        connect(item, &QQuickItem::visibleChanged, this, &VisibilityWatch::reconsider);
        connect(item, &QQuickItem::windowChanged, this, &VisibilityWatch::follow);
        // It is told of as unseen while it is still known: nobody takes it for never watched.
        connect(item, &QObject::destroyed, this, [this] {
            takeSeen(false);
            m_item = nullptr;
        });
    }
    follow(item ? item->window() : nullptr);
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
        WindowCover::of(*m_window).disconnect(this);
    }
    m_window = window;
    if (window) {
        window->installEventFilter(this);
        connect(window, &QWindow::visibilityChanged, this, &VisibilityWatch::reconsider);
        connect(&WindowCover::of(*window), &WindowCover::isCoveredChanged, this,
                &VisibilityWatch::reconsider);
    }
    reconsider();
}

void VisibilityWatch::reconsider() {
    takeSeen(m_item && m_item->isVisible() && m_window && m_window->isExposed() &&
             m_window->isVisible() && m_window->visibility() != QWindow::Minimized &&
             !WindowCover::of(*m_window).isCovered());
}

void VisibilityWatch::takeSeen(bool isSeen) {
    if (assignIfChanged(m_isSeen, isSeen))
        Q_EMIT isSeenChanged();
}

} // namespace kestrowind
