#pragma once

#include <QGuiApplication>

namespace kestrowind {

/// To the X server; null where the windows are not on one. (Other plugins of the toolkit have the
/// interface, too, and no connection behind it.)
[[nodiscard]] inline xcb_connection_t* x11Connection() {
    const auto* x11 = QGuiApplication::platformName() == QLatin1String("xcb")
                          ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>()
                          : nullptr;
    return x11 ? x11->connection() : nullptr;
}

} // namespace kestrowind
