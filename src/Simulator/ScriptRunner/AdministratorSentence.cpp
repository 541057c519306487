#include "Simulator/ScriptRunner/AdministratorSentence.h"

namespace kestrowind {

std::optional<std::string> parseAdministratorSentence(std::string_view script) {
    constexpr std::string_view before = "do shell script \"";
    constexpr std::string_view behind = "\" with administrator privileges";
    constexpr std::string_view written = "\\\"nrt"; // behind a backslash
    constexpr std::string_view meant = "\\\"\n\r\t";
    if (script.size() < before.size() + behind.size() || !script.starts_with(before) ||
        !script.ends_with(behind))
        return std::nullopt;
    script.remove_prefix(before.size());
    script.remove_suffix(behind.size());
    std::string text;
    for (std::size_t at = 0; at < script.size(); ++at) {
        if (script[at] == '"')
            return std::nullopt;
        if (script[at] != '\\') {
            text += script[at];
            continue;
        }
        ++at;
        const auto escape = at < script.size() ? written.find(script[at]) : std::string_view::npos;
        if (escape == std::string_view::npos)
            return std::nullopt;
        text += meant[escape];
    }
    return text;
}

} // namespace kestrowind
