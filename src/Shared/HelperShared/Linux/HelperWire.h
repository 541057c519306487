#pragma once

#include <filesystem>
#include <string>

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
[[nodiscard]] std::string busAddress(const std::filesystem::path& socket);

} // namespace kestrowind::HelperWire
