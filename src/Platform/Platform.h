#pragma once

#include "Platform/ActivationPolicy.h"
#include "Platform/AdminScriptRunner.h"
#include "Platform/ApplicationObject.h"
#include "Platform/HelperConnection.h"
#include "Platform/LoginItem.h"
#include "Platform/Notifications.h"
#include "Platform/RunningApplications.h"
#include "Platform/SystemAppearance.h"
#include "Platform/SystemInformation.h"
#include "Platform/UserActivity.h"
#include "Platform/UserDefaults.h"
#include "Shared/SMCKit/SMCUserClient.h"

#include <functional>
#include <memory>

namespace kestrowind {

/// Everything that the system gives to the application, one member a facility. The application is
/// built from one of these; tests put their own parts in.
struct Platform {
    std::unique_ptr<ApplicationObject> application;
    std::unique_ptr<SystemInformation> information;
    std::unique_ptr<UserActivity> activity;
    std::unique_ptr<UserDefaults> userDefaults;
    std::unique_ptr<RunningApplications> runningApplications;
    std::unique_ptr<ActivationPolicy> activationPolicy;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<AdminScriptRunner> scriptRunner;
    HelperConnectionFactory helperConnection;
    SMCUserClientFactory smc;
    /// Called when there is something to show: a run without windows asks nobody for a colour
    /// scheme.
    SystemAppearanceFactory systemAppearance;
    /// The same: a run without windows connects to nobody.
    NotificationsFactory notifications;
    /// Gives back to the system what the process has freed but its allocator keeps. To be called
    /// when much has gone at once; takes milliseconds.
    std::function<void()> returnFreedMemory;
};

/// What has to be set for this system's desktop before the application object is made.
void prepareDesktop();

/// The platform that this program was built for. `arguments` without the program's name.
[[nodiscard]] Platform makePlatform(const QStringList& arguments);

} // namespace kestrowind
