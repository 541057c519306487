#include "Platform/Platform.h"

#include "Platform/BundleInformation.h"
#include "Platform/macOS/AppKitApplication.h"
#include "Platform/macOS/AppServiceLoginItem.h"
#include "Platform/macOS/BundleSystemInformation.h"
#include "Platform/macOS/DockActivationPolicy.h"
#include "Platform/macOS/NativeDefaults.h"
#include "Platform/macOS/ProcessActivity.h"
#include "Platform/macOS/SystemLog.h"
#include "Platform/macOS/UserNotifications.h"
#include "Platform/macOS/WorkspaceApplications.h"
#include "Platform/macOS/XPCHelperConnection.h"
#include "Shared/SMCKit/macOS/IOKitUserClient.h"

#include <malloc/malloc.h>

namespace kestrowind {

using namespace Qt::StringLiterals;

void prepareDesktop() {
    logToSystem();
}

Platform makePlatform(const QStringList& arguments) {
    return {
        .application = std::make_unique<AppKitApplication>(),
        .information = std::make_unique<BundleSystemInformation>(),
        .activity = std::make_unique<ProcessActivity>(),
        .userDefaults = std::make_unique<UserDefaults>(
            arguments,
            [] { return openNativeDefaults(QString::fromLatin1(BundleInformation::identifier)); }),
        .runningApplications = std::make_unique<WorkspaceApplications>(),
        .activationPolicy = std::make_unique<DockActivationPolicy>(),
        .loginItem = std::make_unique<AppServiceLoginItem>(),
        .scriptRunner = std::make_unique<ProcessScriptRunner>(u"/usr/bin/osascript"_s),
        .helperConnection =
            [](const QString& machServiceName) -> std::unique_ptr<HelperConnection> {
            return std::make_unique<XPCHelperConnection>(machServiceName);
        },
        .smc = [] { return std::make_shared<IOKitUserClient>(); },
        // The toolkit's palette follows the system's light and dark.
        .systemAppearance = []() -> std::unique_ptr<SystemAppearance> { return nullptr; },
        .notifications = []() -> std::unique_ptr<Notifications> {
            return std::make_unique<UserNotifications>();
        },
        .returnFreedMemory = [] { ::malloc_zone_pressure_relief(nullptr, 0); },
    };
}

} // namespace kestrowind
