#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

namespace kestrowind {

/// How the simulated helper is to behave towards its callers.
struct HelperBehaviour {
    enum class Kind {
        normal,
        silent,  ///< neither acts nor replies
        hang,    ///< its loop hangs at the next call
        late,    ///< acts at once, replies after the delay
        garbage, ///< replies with values of wrong types, and a status that is no JSON
        fail,    ///< is in the failed phase, for the reason of the text
        version, ///< reports the text as its version
    };

    Kind kind = Kind::normal;
    std::chrono::milliseconds delay{0};
    std::string text = {};

    bool operator==(const HelperBehaviour&) const = default;
};

/// The kind of this name; normal for any other.
[[nodiscard]] HelperBehaviour::Kind helperBehaviourKind(std::string_view name);

/// The behaviour in the file; normal when the file is absent or says nothing valid.
[[nodiscard]] HelperBehaviour readHelperBehaviour(const std::filesystem::path& file);

/// The document that says so in the file.
[[nodiscard]] std::string encodeHelperBehaviour(const HelperBehaviour& behaviour);

} // namespace kestrowind
