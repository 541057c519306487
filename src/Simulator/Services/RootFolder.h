#pragma once

#include <expected>
#include <filesystem>
#include <string>

namespace kestrowind {

/// Makes the folder that a machine is to live in, with the folders that it begins with, and returns
/// it as SimulatedMac::rootAt names it. The error says why no machine can live there: because of
/// its name, or because somebody else could put programs in it that its owner would run.
[[nodiscard]] std::expected<std::filesystem::path, std::string>
prepareRootFolder(const std::filesystem::path& name);

} // namespace kestrowind
