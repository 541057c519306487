#pragma once

#include <QByteArray>
#include <QString>

#include <filesystem>

/// The helper protocol as it travels inside a simulated Mac: D-Bus, peer to peer, over the socket
/// that launchd holds for the Mach service.
///
/// | method         | in   | out  | stands for the selector     |
/// | -------------- | ---- | ---- | --------------------------- |
/// | SetTargets     | `ad` | `ad` | "setTargets:reply:"         |
/// | ReleaseControl |      |      | "releaseControlWithReply:"  |
/// | Status         |      | `ay` | "statusWithReply:"          |
/// | Uninstall      |      | `b`  | "uninstallWithReply:"       |
/// | ShutDown       |      |      | "shutDownWithReply:"        |
///
/// Values that the helper refuses come back as the error org.freedesktop.DBus.Error.InvalidArgs.
namespace kestrowind::HelperWire {

inline constexpr char objectPath[] = "/";
inline constexpr char interfaceName[] = "app.kestrowind.Helper";

/// The D-Bus address of a service's socket: what the path may not hold in one is escaped.
[[nodiscard]] inline QString busAddress(const std::filesystem::path& socket) {
    const auto path = QByteArray::fromStdString(socket.string());
    return QString::fromLatin1("unix:path=" + path.toPercentEncoding("/", "~"));
}

} // namespace kestrowind::HelperWire
