#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrowind {

/// The shell text of a script of the form
///
///     do shell script "TEXT" with administrator privileges
///
/// with the escapes of TEXT undone by the rules of the script language: `\\`, `\"`, `\n`, `\r` and
/// `\t`, any other backslash is an error, everything else stands for itself, line feeds included.
/// Absent for any other script.
[[nodiscard]] std::optional<std::string> parseAdministratorSentence(std::string_view script);

} // namespace kestrowind
