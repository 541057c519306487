#pragma once

#include "Platform/macOS/AppServiceLoginItem.h"
#include "Platform/macOS/BundleSystemInformation.h"
#include "Platform/macOS/NativeDefaults.h"
#include "Platform/macOS/WorkspaceApplications.h"
#include "Platform/macOS/XPCHelperConnection.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/macOS/IOKitUserClient.h"

#include <QFileInfo>

#include <gmock/gmock.h>

/// The implementations that the seams' tests run against on this system, and the machine itself
/// around them: nothing here drives a fan or takes a helper away.
namespace kestrowind::ThisSystem {

class Kernel {
public:
    std::shared_ptr<SMCUserClient> userClient() { return std::make_shared<IOKitUserClient>(); }
};

class Helper {
public:
    static constexpr bool isExpendable = false;

    [[nodiscard]] bool isInstalled() const {
        return QFileInfo::exists(QLatin1StringView(HelperConstants::helperInstallPath)) &&
               QFileInfo::exists(QLatin1StringView(HelperConstants::daemonPlistPath));
    }
    std::unique_ptr<HelperConnection> connection(const QString& machServiceName) {
        return std::make_unique<XPCHelperConnection>(machServiceName);
    }
    static void freeze() {}
    static void kill() {}
};

/// Preferences of a domain of the tests' own.
class Defaults {
public:
    Defaults() { open()->clear(); }
    ~Defaults() { open()->clear(); }
    std::unique_ptr<QSettings> open() {
        return openNativeDefaults(QStringLiteral("com.kestrowind-tests.seams"));
    }
};

class Workspace {
public:
    static std::unique_ptr<RunningApplications> applications() {
        return std::make_unique<WorkspaceApplications>();
    }
};

class Login {
public:
    std::unique_ptr<LoginItem> item() { return std::make_unique<AppServiceLoginItem>(); }
};

class Machine {
public:
    std::unique_ptr<SystemInformation> information() {
        return std::make_unique<BundleSystemInformation>();
    }
};

} // namespace kestrowind::ThisSystem
