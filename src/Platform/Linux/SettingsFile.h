#pragma once

#include <QSettings>

#include <memory>

namespace kestrowind {

/// The user's settings as an INI file. What is no file there, such as a pipe, or one above 8 MiB,
/// is moved aside to "NAME.unreadable", since reading it could take for ever.
[[nodiscard]] std::unique_ptr<QSettings> openSettingsFile(const QString& path);

} // namespace kestrowind
