#pragma once

#include <expected>
#include <filesystem>
#include <string>

namespace kestrowind {

/// Makes the folder that a machine is to live in, with the folders that it begins with, and returns
/// it as SimulatedMac::rootAt names it. The error says why no machine can live there: because of
/// its name, because somebody else could put programs in it that its owner would run, or because
/// it holds other files.
[[nodiscard]] std::expected<std::filesystem::path, std::string>
prepareRootFolder(const std::filesystem::path& name);

/// A descriptor that keeps other machines out of the folder while it is open.
[[nodiscard]] std::expected<int, std::string> lockRootFolder(const std::filesystem::path& root);

} // namespace kestrowind
