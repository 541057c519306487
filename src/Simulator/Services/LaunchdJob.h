#pragma once

#include <QString>

#include <expected>
#include <filesystem>
#include <string>
#include <vector>

namespace kestrowind {

/// What a launchd job description says, as far as the simulated launchd cares.
struct LaunchdJob {
    std::string label;
    std::string machService;
    std::vector<std::string> programArguments; ///< the program first, as a path of the Mac
    /// KeepAlive's SuccessfulExit is false: the program runs from the start on, and again whenever
    /// it ended in any other way than by exiting with 0.
    bool isKeptAliveUntilItSucceeds = false;
};

/// Reads a property list in XML. The error says what is missing or malformed.
[[nodiscard]] std::expected<LaunchdJob, std::string>
readLaunchdJob(const std::filesystem::path& propertyList);

} // namespace kestrowind
