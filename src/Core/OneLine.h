#pragma once

#include <QString>

namespace kestrowind {

/// A name as a place of one line shows it: a run of line breaks and tabs is one blank, and
/// what else has no picture is left out.
[[nodiscard]] QString oneLine(const QString& name);

/// A name inside a sentence: on one line, and set apart so that a name that is written from right
/// to left, or that turns the direction and never turns it back, leaves the words around it in
/// their places.
[[nodiscard]] QString quotable(const QString& name);

} // namespace kestrowind
