#pragma once

#include <array>
#include <expected>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The commands that an administrator's script finds in a simulated Mac.
///
/// A namespace of mounts would show a script the machine's /Library as such, but many computers do
/// not let their users make one. The scripts reach the file system through a few commands only, so
/// each of those is the machine's own: it puts the machine's folder before paths in /Library, and
/// is this computer's command otherwise, with its messages and its exit status.
namespace kestrowind::MacCommand {

/// Where the commands lie in the machine; all are one program, which looks at its name.
inline constexpr std::array<std::string_view, 6> paths{"/bin/chmod", "/bin/cp", "/bin/launchctl",
                                                       "/bin/mkdir", "/bin/rm", "/usr/sbin/chown"};
/// Where the shell of a script looks for commands.
inline constexpr std::array<std::string_view, 4> searchPath{"/usr/bin", "/bin", "/usr/sbin",
                                                            "/sbin"};
inline constexpr char scriptRunnerPath[] = "/usr/bin/osascript";

using Words = std::vector<std::string>;

/// The command of this computer that does in the folder `root` what the command would do on the
/// Mac. The error is one line for standard error: an administrator of this machine has no power
/// outside of its /Library, and knows no more options than the scripts need.
[[nodiscard]] std::expected<Words, std::string>
translate(const std::filesystem::path& root, const std::string& name, const Words& arguments);

} // namespace kestrowind::MacCommand
