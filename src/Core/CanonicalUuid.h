#pragma once

#include <QUuid>

#include <optional>

namespace kestrowind {

/// The UUID in upper-case 8-4-4-4-12 form, as it is stored everywhere.
[[nodiscard]] QString uuidText(const QUuid& uuid);

/// Parses that form in either letter case, and no other: no braces, no missing hyphens.
[[nodiscard]] std::optional<QUuid> parseUuid(const QString& text);

} // namespace kestrowind
