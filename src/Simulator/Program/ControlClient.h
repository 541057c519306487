#pragma once

#include <QStringList>

namespace kestrowind {

/// `kestrowind-simulator ctl`: sends one command to a running machine and prints what it answers.
/// The arguments are those behind "ctl"; returns the exit status.
[[nodiscard]] int runControlClient(const QStringList& arguments);

} // namespace kestrowind
