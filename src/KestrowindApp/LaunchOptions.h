#pragma once

#include <QStringList>

#include <expected>
#include <optional>

namespace kestrowind {

enum class ReadingsFormat { text, json };

/// Launch arguments that are about the run itself rather than about a setting.
struct LaunchOptions {
    bool dumpsSMCKeys = false; ///< "-DumpSMCKeys": write the diagnostic dump and end
    bool showsHelp = false;    ///< "-help" or "--help"
    bool showsVersion = false; ///< "-version" or "--version"
    std::optional<ReadingsFormat> readings = {}; ///< "-PrintReadings text|json"

    /// `arguments` without the program's name. The error is for standard error.
    [[nodiscard]] static std::expected<LaunchOptions, QString> parse(const QStringList& arguments);
    [[nodiscard]] static QString help();
};

} // namespace kestrowind
