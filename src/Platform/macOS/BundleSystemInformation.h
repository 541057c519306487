#pragma once

#include "Platform/SystemInformation.h"

namespace kestrowind {

/// The kernel, the process information and the main bundle.
class BundleSystemInformation final : public SystemInformation {
public:
    [[nodiscard]] std::optional<QString> sysctl(const QByteArray& name) const override;
    [[nodiscard]] QString operatingSystemVersion() const override;
    [[nodiscard]] std::optional<QString> bundleText(const QString& key) const override;
    [[nodiscard]] std::optional<QString> bundleIdentifier() const override;
    [[nodiscard]] std::optional<QString> bundleResource(const QString& fileName) const override;
    [[nodiscard]] bool fileExists(const QString& machinePath) const override;
    [[nodiscard]] bool needsApproval(const QString& jobPath) const override;
    [[nodiscard]] QString applicationSupportFolder() const override;
};

} // namespace kestrowind
