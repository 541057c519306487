#include "Platform/macOS/AppServiceLoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

namespace kestrowind {

bool AppServiceLoginItem::isEnabled() const {
    return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
}

bool AppServiceLoginItem::needsApproval() const {
    return SMAppService.mainAppService.status == SMAppServiceStatusRequiresApproval;
}

std::expected<void, QString> AppServiceLoginItem::registerApplication() {
    NSError* error = nil;
    if ([SMAppService.mainAppService registerAndReturnError:&error])
        return {};
    return std::unexpected(QString::fromNSString(error.localizedDescription));
}

std::expected<void, QString> AppServiceLoginItem::unregisterApplication() {
    NSError* error = nil;
    if ([SMAppService.mainAppService unregisterAndReturnError:&error])
        return {};
    return std::unexpected(QString::fromNSString(error.localizedDescription));
}

} // namespace kestrowind
