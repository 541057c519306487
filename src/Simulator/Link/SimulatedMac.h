#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

/// Where a program that runs inside a simulated Mac finds the machine: its root folder, given by an
/// environment variable, and the sockets in it.
namespace kestrowind::SimulatedMac {

inline constexpr char rootVariable[] = "KESTROWIND_SIMULATED_MAC";

/// A root folder that does not exist: what is looked for in it is not found, and never taken from
/// the real machine.
inline constexpr char nowhere[] = "/nonexistent";

/// The root folder that somebody names so: absolute, without links, detours and a slash at its end,
/// so that a machine is the same one for everybody.
[[nodiscard]] std::filesystem::path rootAt(const std::filesystem::path& name);

/// The root folder of the simulated Mac around this process; absent outside of one.
[[nodiscard]] std::optional<std::filesystem::path> root();

/// Where a path of the Mac ("/Library/...") lies on the real machine.
[[nodiscard]] std::filesystem::path systemPath(const std::filesystem::path& root,
                                               std::string_view macPath);

/// The socket of the kernel's SMC service: one SMCWire record a message.
[[nodiscard]] std::filesystem::path smcSocket(const std::filesystem::path& root);

/// The socket on which the machine takes `ctl` commands.
[[nodiscard]] std::filesystem::path controlSocket(const std::filesystem::path& root);

/// The socket that launchd holds for a Mach service while its job is bootstrapped.
[[nodiscard]] std::filesystem::path serviceSocket(const std::filesystem::path& root,
                                                  std::string_view machServiceName);

/// JSON object of the machine's `sysctl` texts and its "osVersion".
[[nodiscard]] std::filesystem::path systemInformationFile(const std::filesystem::path& root);

/// How the simulated helper is told to misbehave; absent while it behaves.
[[nodiscard]] std::filesystem::path helperBehaviourFile(const std::filesystem::path& root);

} // namespace kestrowind::SimulatedMac
