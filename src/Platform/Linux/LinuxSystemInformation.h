#pragma once

#include "Platform/SystemInformation.h"

#include <QHash>

namespace kestrowind {

/// Inside a simulated Mac its texts and files; outside of one nothing that a Mac would say.
class LinuxSystemInformation final : public SystemInformation {
public:
    LinuxSystemInformation();

    /// Where an absolute path of the Mac lies on this computer. Outside of a simulated Mac it is a
    /// path that cannot exist, so that the real system's files are never taken for the machine's.
    [[nodiscard]] static QString machinePath(const QString& path);

    [[nodiscard]] std::optional<QString> sysctl(const QByteArray& name) const override;
    [[nodiscard]] QString operatingSystemVersion() const override;
    [[nodiscard]] std::optional<QString> bundleText(const QString& key) const override;
    [[nodiscard]] std::optional<QString> bundleIdentifier() const override;
    [[nodiscard]] std::optional<QString> bundleResource(const QString& fileName) const override;
    [[nodiscard]] bool fileExists(const QString& machinePath) const override;
    [[nodiscard]] QString applicationSupportFolder() const override;

private:
    QHash<QString, QString> m_machineTexts;
};

} // namespace kestrowind
