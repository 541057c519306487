#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kestrowind {

/// What the machine, its system and the application's own bundle say of themselves.
class SystemInformation {
public:
    SystemInformation() = default;
    SystemInformation(const SystemInformation&) = delete;
    SystemInformation& operator=(const SystemInformation&) = delete;
    virtual ~SystemInformation() = default;

    /// A text of the kernel's sysctl tree ("hw.model"); absent when there is no such name.
    [[nodiscard]] virtual std::optional<QString> sysctl(const QByteArray& name) const = 0;
    [[nodiscard]] virtual QString operatingSystemVersion() const = 0;

    /// A text of the bundle's information dictionary; absent when there is none under this key.
    [[nodiscard]] virtual std::optional<QString> bundleText(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<QString> bundleIdentifier() const = 0;
    /// The path of a file among the bundle's resources; absent when it is not there.
    [[nodiscard]] virtual std::optional<QString> bundleResource(const QString& fileName) const = 0;

    /// Whether a file exists at an absolute path of the machine ("/Library/...").
    [[nodiscard]] virtual bool fileExists(const QString& machinePath) const = 0;

    /// Whether a job description at an absolute path of the machine is there, but its job switched
    /// off in the system's settings, where alone it can be allowed again.
    [[nodiscard]] virtual bool needsApproval(const QString& /*jobPath*/) const { return false; }

    /// The folder for the application's own files; created by whoever writes the first of them.
    [[nodiscard]] virtual QString applicationSupportFolder() const = 0;
};

} // namespace kestrowind
