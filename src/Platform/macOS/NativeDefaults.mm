#include "Platform/macOS/NativeDefaults.h"

#import <Foundation/Foundation.h>

#include <QStringList>

#include <algorithm>

namespace kestrowind {
namespace {

/// What the toolkit makes the domain of. It turns an internet domain round, but only one that ends
/// like those that it knows: "app.kestrowind" would become "com.kestrowind-app". Of no name at all
/// it makes the identifier of the bundle that runs.
QString organizationOf(const QString& domain) {
    NSString* bundle = NSBundle.mainBundle.bundleIdentifier;
    if (bundle && QString::fromNSString(bundle) == domain)
        return {};
    QStringList parts = domain.split(u'.');
    std::ranges::reverse(parts);
    return parts.join(u'.');
}

} // namespace

std::unique_ptr<QSettings> openNativeDefaults(const QString& domain) {
    auto settings = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                                organizationOf(domain));
    settings->setFallbacksEnabled(false);
    return settings;
}

} // namespace kestrowind
