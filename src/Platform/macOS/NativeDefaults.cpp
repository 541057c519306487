#include "Platform/macOS/NativeDefaults.h"

#include <QStringList>

#include <algorithm>

namespace kestrowind {

std::unique_ptr<QSettings> openNativeDefaults(const QString& bundleIdentifier) {
    // The toolkit wants the organisation's internet domain, and names the preferences by turning
    // it round again.
    QStringList parts = bundleIdentifier.split(u'.');
    std::ranges::reverse(parts);
    auto settings = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                                parts.join(u'.'));
    settings->setFallbacksEnabled(false);
    return settings;
}

} // namespace kestrowind
