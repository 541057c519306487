#include "UI/MenuBar/Linux/GrabbingPanel.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>

namespace kestrowind {

using namespace Qt::StringLiterals;

PanelWindow* PanelWindow::make(QWindow& window) {
    return new GrabbingPanel(window);
}

GrabbingPanel::GrabbingPanel(QWindow& window)
    : PanelWindow(&window)
    , m_window(window) {
    window.installEventFilter(this);
}

void GrabbingPanel::setOpen(bool isOpen) {
    m_isOpen = isOpen;
    setGrab(isOpen && m_window.isExposed());
}

void GrabbingPanel::setGrab(bool isGrabbed) {
    if (QGuiApplication::platformName() == "xcb"_L1)
        m_window.setMouseGrabEnabled(isGrabbed);
}

bool GrabbingPanel::eventFilter(QObject* watched, QEvent* event) {
    // Nobody holds the pointer for a window that is not there yet.
    if (event->type() == QEvent::Expose && m_isOpen && m_window.isExposed())
        setGrab(true);
    if (event->type() == QEvent::MouseButtonPress) {
        const QPointF position = static_cast<QMouseEvent*>(event)->position();
        if (!QRectF(QPointF(), QSizeF(m_window.size())).contains(position)) {
            Q_EMIT clickedElsewhere();
            return true;
        }
    }
    return PanelWindow::eventFilter(watched, event);
}

} // namespace kestrowind
