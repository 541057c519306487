#pragma once

#include "Simulator/Hardware/MachineProfile.h"

#include <QString>
#include <QStringList>

namespace kestrowind::ProfileLibrary {

/// The profile of a machine whose owner did not choose one.
inline constexpr char defaultName[] = "notebook-2fan";

/// Names of the profiles that are compiled in.
[[nodiscard]] QStringList names();

/// A profile by its name or from a file. The error names the profile and what is wrong with it.
[[nodiscard]] std::expected<MachineProfile, std::string> load(const QString& nameOrFile);

} // namespace kestrowind::ProfileLibrary
