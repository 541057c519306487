#pragma once

#include <QStringList>

#include <expected>
#include <optional>

namespace kestrowind {

enum class ReadingsFormat { text, json };

/// Launch arguments that are about the run itself rather than about a setting.
struct LaunchOptions {
    enum class Task { run, dumpSMCKeys, showHelp, showVersion };

    Task task = Task::run; ///< every other one writes to standard output and ends
    std::optional<ReadingsFormat> readings = {}; ///< "-PrintReadings text|json"

    /// `arguments` without the program's name. Whatever else they hold, "-DumpSMCKeys" dumps. Of
    /// the rest the first word decides that is a task, or that is neither key nor value. The error
    /// is for standard error.
    [[nodiscard]] static std::expected<LaunchOptions, QString> parse(const QStringList& arguments);
    [[nodiscard]] static QString help();
};

} // namespace kestrowind
