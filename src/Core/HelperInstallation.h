#pragma once

#include <QString>

/// The shell scripts that install and remove the helper, and how they are handed to the runner that
/// asks for an administrator's password.
namespace kestrowind::HelperInstallation {

/// Names of the two files among the application's resources.
[[nodiscard]] QString executableResource();
[[nodiscard]] QString jobDescriptionResource();

/// Nine lines, run one after another whatever each does; the result is that of the last. A running
/// helper is stopped first, so the same script reinstalls. The paths may hold any character.
[[nodiscard]] QString installScript(const QString& executablePath,
                                    const QString& jobDescriptionPath);
[[nodiscard]] QString removalScript();

/// An AppleScript that runs a shell script with administrator privileges.
[[nodiscard]] QString withAdministratorPrivileges(QString shellScript);

} // namespace kestrowind::HelperInstallation
