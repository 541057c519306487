#include "Simulator/ScriptRunner/MacCommand.h"

#include "Simulator/Link/SimulatedMac.h"

#include <algorithm>
#include <unistd.h>

namespace kestrowind {
namespace {

using Words = MacCommand::Words;
namespace fs = std::filesystem;

/// A command of the form: options, words that are no path, paths.
struct Form {
    std::string_view name;
    std::string_view option; ///< the only one it takes; empty for none
    std::size_t leadingWords = 0;
    bool readsAnywhere = false; ///< all paths but the last are only read
};

constexpr std::array forms{
    Form{.name = "chmod", .option = "", .leadingWords = 1},
    Form{.name = "chown", .option = "", .leadingWords = 1},
    Form{.name = "cp", .option = "", .readsAnywhere = true},
    Form{.name = "mkdir", .option = "-p"},
    Form{.name = "rm", .option = "-f"},
};

bool isInLibrary(const fs::path& path) {
    const fs::path normal = path.lexically_normal();
    return normal.is_absolute() && std::distance(normal.begin(), normal.end()) >= 2 &&
           *std::next(normal.begin()) == "Library";
}

/// The machine's files belong to whoever owns its folder: that is its root and its wheel.
std::string ownerHere() {
    return std::to_string(::getuid()) + ":" + std::to_string(::getgid());
}

} // namespace

std::expected<Words, std::string>
MacCommand::translate(const fs::path& root, const std::string& name, const Words& arguments) {
    const auto* const form = std::ranges::find(forms, name, &Form::name);
    if (form == forms.end())
        return std::unexpected(name + ": command not found");
    Words command{name};
    std::size_t next = 0;
    for (; next < arguments.size() && arguments[next].starts_with('-'); ++next) {
        if (arguments[next] != form->option)
            return std::unexpected(name + ": illegal option " + arguments[next]);
        command.push_back(arguments[next]);
    }
    // What follows is never an option, whatever it begins with.
    command.emplace_back("--");
    for (std::size_t word = 0; word < form->leadingWords && next < arguments.size();
         ++word, ++next) {
        if (name == "chown" && arguments[next] != "root:wheel")
            return std::unexpected(name + ": " + arguments[next] + ": illegal user name");
        command.push_back(name == "chown" ? ownerHere() : arguments[next]);
    }
    for (; next < arguments.size(); ++next) {
        const std::string& path = arguments[next];
        const bool isOnlyRead = form->readsAnywhere && next + 1 < arguments.size();
        if (isInLibrary(path))
            command.push_back(
                SimulatedMac::systemPath(root, fs::path(path).lexically_normal().string())
                    .string());
        else if (isOnlyRead && fs::path(path).is_absolute())
            command.push_back(path);
        else
            return std::unexpected(name + ": " + path + ": Operation not permitted");
    }
    return command;
}

} // namespace kestrowind
