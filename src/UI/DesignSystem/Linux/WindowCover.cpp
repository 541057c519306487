#include "UI/DesignSystem/WindowCover.h"

#include "UI/DesignSystem/Linux/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QPlatformSurfaceEvent>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace kestrowind {
namespace {

/// Hears the X server's visibility events, which the toolkit neither asks for nor looks at. The
/// server takes a window that a compositor draws for visible, however much covers it.
class X11WindowCover final : public WindowCover, private QAbstractNativeEventFilter {
public:
    X11WindowCover(QWindow& window, xcb_connection_t* connection)
        : WindowCover(window)
        , m_window(window)
        , m_connection(connection) {
        qGuiApp->installNativeEventFilter(this);
        window.installEventFilter(this);
        if (window.handle())
            askForEvents();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PlatformSurface &&
            static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
                QPlatformSurfaceEvent::SurfaceCreated)
            askForEvents();
        return QObject::eventFilter(watched, event);
    }

private:
    void askForEvents() {
        m_id = static_cast<xcb_window_t>(m_window.winId());
        const std::unique_ptr<xcb_get_window_attributes_reply_t, decltype(&std::free)> attributes(
            xcb_get_window_attributes_reply(m_connection,
                                            xcb_get_window_attributes(m_connection, m_id), nullptr),
            &std::free);
        if (!attributes)
            return;
        const std::uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_VISIBILITY_CHANGE;
        xcb_change_window_attributes(m_connection, m_id, XCB_CW_EVENT_MASK, &events);
        xcb_flush(m_connection);
    }

    bool nativeEventFilter(const QByteArray& /*eventType*/, void* message,
                           qintptr* /*result*/) override {
        constexpr std::uint8_t sentByAClient = 0x80;
        const auto* event = static_cast<xcb_generic_event_t*>(message);
        if ((event->response_type & ~sentByAClient) == XCB_VISIBILITY_NOTIFY) {
            const auto* seen = static_cast<xcb_visibility_notify_event_t*>(message);
            if (seen->window == m_id)
                setCovered(seen->state == XCB_VISIBILITY_FULLY_OBSCURED);
        }
        return false;
    }

    QWindow& m_window;
    xcb_connection_t* m_connection;
    xcb_window_t m_id = XCB_WINDOW_NONE;
};

} // namespace

WindowCover* WindowCover::make(QWindow& window) {
    if (xcb_connection_t* connection = x11Connection())
        return new X11WindowCover(window, connection);
    return new WindowCover(window);
}

} // namespace kestrowind
