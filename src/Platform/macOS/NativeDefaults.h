#pragma once

#include <QSettings>

#include <memory>

namespace kestrowind {

/// The user's preferences of the domain with a bundle's identifier ("app.kestrowind"), where the
/// system's own tools look for them.
[[nodiscard]] std::unique_ptr<QSettings> openNativeDefaults(const QString& bundleIdentifier);

} // namespace kestrowind
