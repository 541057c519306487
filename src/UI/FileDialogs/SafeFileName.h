#pragma once

#include <QString>

namespace kestrowind {

/// A name that every file system takes, from a text of any characters: what names folders or drives
/// becomes a hyphen, what has no picture a blank, and it is neither hidden nor long nor empty.
[[nodiscard]] QString safeFileName(const QString& text);

} // namespace kestrowind
