#include "Platform/Platform.h"

#include "Platform/Linux/AutostartEntry.h"
#include "Platform/Linux/BusNotifications.h"
#include "Platform/Linux/EventLoopApplication.h"
#include "Platform/Linux/HelperBus.h"
#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Linux/LinuxSystemInformation.h"
#include "Platform/Linux/PortalAppearance.h"
#include "Platform/Linux/RememberedActivationPolicy.h"
#include "Platform/Linux/RememberedActivity.h"
#include "Platform/Linux/SessionBus.h"
#include "Platform/Linux/SettingsFile.h"
#include "Simulator/Link/SMCLink.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <malloc.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(platformLog, "app.kestrowind.platform", QtInfoMsg)

SMCUserClientFactory machineSMC() {
    const auto root = SimulatedMac::root();
    if (!root)
        qCWarning(platformLog)
            << "this computer is no Mac: ./run starts Kestrowind in a simulated one";
    return [socket = SimulatedMac::smcSocket(root.value_or(SimulatedMac::nowhere))] {
        return std::make_shared<SMCLink>(socket);
    };
}

} // namespace

void prepareDesktop() {
    const auto isSet = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
    // Our windows are small and mostly still: drawn by the processor they need a third of the
    // memory that an OpenGL stack takes before it draws anything, and are on the screen sooner.
    if (!isSet("QT_QUICK_BACKEND") && !isSet("QSG_RHI_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    if (!isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY") && !isSet("QT_QPA_PLATFORM")) {
        qCInfo(platformLog) << "no display: nothing is shown";
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    SessionBus::leaveASilentOne();
}

Platform makePlatform(const QStringList& arguments) {
    const QString settings =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
        u"/Kestrowind/Kestrowind.ini"_s;
    return {
        .application = std::make_unique<EventLoopApplication>(),
        .information = std::make_unique<LinuxSystemInformation>(),
        .activity = std::make_unique<RememberedActivity>(),
        .userDefaults = std::make_unique<UserDefaults>(
            arguments, [settings] { return openSettingsFile(settings); }),
        .runningApplications = std::make_unique<LinuxRunningApplications>(),
        .activationPolicy = std::make_unique<RememberedActivationPolicy>(),
        .loginItem = AutostartEntry::ofThisApplication(),
        .scriptRunner = std::make_unique<ProcessScriptRunner>(
            LinuxSystemInformation::machinePath(u"/usr/bin/osascript"_s)),
        .helperConnection =
            [](const QString& machServiceName) -> std::unique_ptr<HelperConnection> {
            return std::make_unique<HelperBus>(machServiceName);
        },
        .smc = machineSMC(),
        .systemAppearance = []() -> std::unique_ptr<SystemAppearance> {
            return std::make_unique<PortalAppearance>(QDBusConnection::sessionBus());
        },
        .notifications = []() -> std::unique_ptr<Notifications> {
            return std::make_unique<BusNotifications>(QDBusConnection::sessionBus());
        },
        .returnFreedMemory = [] { ::malloc_trim(0); },
    };
}

} // namespace kestrowind
