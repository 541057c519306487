#pragma once

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>

namespace kestrowind {

/// Why a script is not the one sentence that this machine understands.
struct SentenceError {
    std::size_t position = 0; ///< in bytes, of the first that does not belong
    std::string message = {};

    bool operator==(const SentenceError&) const = default;
};

/// The shell text of a script of the form
///
///     do shell script "TEXT" with administrator privileges
///
/// with the escapes of TEXT undone by the rules of the script language: `\\`, `\"`, `\n`, `\r` and
/// `\t`, any other backslash is an error, everything else stands for itself, line feeds included.
[[nodiscard]] std::expected<std::string, SentenceError>
parseAdministratorSentence(std::string_view script);

} // namespace kestrowind
