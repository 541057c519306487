#include "Platform/macOS/BundleSystemInformation.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

#include <QFileInfo>
#include <QStandardPaths>

#include <sys/sysctl.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

std::optional<QString> textOrNothing(id value) {
    if (![value isKindOfClass:[NSString class]])
        return std::nullopt;
    return QString::fromNSString(value);
}

} // namespace

std::optional<QString> BundleSystemInformation::sysctl(const QByteArray& name) const {
    std::size_t size = 0;
    if (sysctlbyname(name.constData(), nullptr, &size, nullptr, 0) != 0 || size == 0)
        return std::nullopt;
    QByteArray value(static_cast<qsizetype>(size), '\0');
    if (sysctlbyname(name.constData(), value.data(), &size, nullptr, 0) != 0)
        return std::nullopt;
    // What counts ends with the first NUL; QByteArray keeps one of its own behind the value.
    return QString::fromUtf8(value.constData());
}

QString BundleSystemInformation::operatingSystemVersion() const {
    return QString::fromNSString(NSProcessInfo.processInfo.operatingSystemVersionString);
}

std::optional<QString> BundleSystemInformation::bundleText(const QString& key) const {
    return textOrNothing([NSBundle.mainBundle objectForInfoDictionaryKey:key.toNSString()]);
}

std::optional<QString> BundleSystemInformation::bundleIdentifier() const {
    return textOrNothing(NSBundle.mainBundle.bundleIdentifier);
}

std::optional<QString> BundleSystemInformation::bundleResource(const QString& fileName) const {
    return textOrNothing([NSBundle.mainBundle pathForResource:fileName.toNSString() ofType:nil]);
}

bool BundleSystemInformation::fileExists(const QString& machinePath) const {
    return QFileInfo::exists(machinePath);
}

bool BundleSystemInformation::needsApproval(const QString& jobPath) const {
    NSURL* job = [NSURL fileURLWithPath:jobPath.toNSString()];
    return [SMAppService statusForLegacyURL:job] == SMAppServiceStatusRequiresApproval;
}

QString BundleSystemInformation::applicationSupportFolder() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Kestrowind"_s;
}

} // namespace kestrowind
