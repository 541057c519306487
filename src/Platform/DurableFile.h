#pragma once

#include <QByteArray>
#include <QString>

#include <expected>

namespace kestrowind::DurableFile {

/// The whole content. What is no regular file, or larger than `largest` bytes, is refused: it could
/// hold up whoever reads it, or never end. The error is the system's reason.
[[nodiscard]] std::expected<QByteArray, QString> read(const QString& path, qsizetype largest);

/// Replaces a file's content so that a crash or a power cut leaves the old or the new content,
/// whole: a temporary file beside it is written, synced to the medium, takes its place, and the
/// folder is synced. When the content cannot be synced the old one stays. The error is the system's
/// reason, for the log.
[[nodiscard]] std::expected<void, QString> write(const QString& path, const QByteArray& content);

/// Moves whatever is at `path` to `newName` beside it, or to the first free "newName-2",
/// "newName-3" and so on; never onto something that exists. Returns the path it now has.
[[nodiscard]] std::expected<QString, QString> setAside(const QString& path, const QString& newName);

} // namespace kestrowind::DurableFile
