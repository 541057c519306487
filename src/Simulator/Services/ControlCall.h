#pragma once

#include <chrono>
#include <expected>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace kestrowind {

/// Longer than the longest that a machine needs for anything but a person's answer.
inline constexpr std::chrono::milliseconds controlPatience{10'000};
/// For a command that a person has to answer.
inline constexpr std::chrono::milliseconds endlessPatience{-1};

/// Has a running machine carry out one `ctl` command and returns what it says. Blocks; the error is
/// the machine's, or why there is none to ask.
[[nodiscard]] std::expected<nlohmann::json, std::string>
callControl(const std::filesystem::path& root, const std::vector<std::string>& words,
            std::chrono::milliseconds patience = controlPatience);

} // namespace kestrowind
