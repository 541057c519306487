#pragma once

#include <expected>
#include <filesystem>
#include <string>
#include <string_view>

namespace kestrowind {

/// Replaces a file so that a reader sees either all of the old content or all of the new.
[[nodiscard]] std::expected<void, std::string> writeAtomically(const std::filesystem::path& file,
                                                               std::string_view content);

} // namespace kestrowind
