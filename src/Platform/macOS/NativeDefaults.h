#pragma once

#include <QSettings>

#include <memory>

namespace kestrowind {

/// The user's preferences of a domain, where the system's own tools look for them: that of the
/// bundle which runs ("app.kestrowind"), or any that ends like an internet domain turned round
/// ("com.example.tests").
[[nodiscard]] std::unique_ptr<QSettings> openNativeDefaults(const QString& domain);

} // namespace kestrowind
