#pragma once

#include "Platform/Linux/AutostartEntry.h"
#include "Platform/Linux/HelperBus.h"
#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Linux/LinuxSystemInformation.h"
#include "Platform/Linux/SettingsFile.h"
#include "Simulator/BootedMac.h"
#include "Simulator/Link/SMCLink.h"

#include <QTemporaryDir>

/// The implementations that the seams' tests run against on this system. Each is made with the
/// machine around it, and leaves nothing behind.
namespace kestrowind::ThisSystem {

using namespace Qt::StringLiterals;

/// A simulated Mac, and this process inside it.
class Inside {
public:
    Inside() { qputenv(SimulatedMac::rootVariable, m_mac.root().c_str()); }
    ~Inside() { qunsetenv(SimulatedMac::rootVariable); }

protected:
    BootedMac m_mac{{u"--installed"_s}};
};

/// The simulated kernel, over its socket.
class Kernel : Inside {
public:
    std::shared_ptr<SMCUserClient> userClient() {
        return std::make_shared<SMCLink>(SimulatedMac::smcSocket(m_mac.root()));
    }
};

class Helper : Inside {
public:
    /// Whether a test may drive the fans, and freeze, kill and uninstall the helper.
    static constexpr bool isExpendable = true;

    [[nodiscard]] bool isInstalled() const { return m_mac.isUp(); }
    std::unique_ptr<HelperConnection> connection(const QString& machServiceName) {
        return std::make_unique<HelperBus>(machServiceName);
    }
    void freeze() const { m_mac.control("helper stop"); }
    /// Returns when launchd has a new one.
    void kill() const {
        const auto pid = m_mac.status()["helper"]["pid"];
        m_mac.control("helper kill");
        waitUntil([&] {
            const auto now = m_mac.status()["helper"]["pid"];
            return !now.is_null() && now != pid;
        });
    }
};

class Defaults {
public:
    std::unique_ptr<QSettings> open() {
        return openSettingsFile(m_folder.filePath(u"defaults.ini"_s));
    }

private:
    QTemporaryDir m_folder;
};

/// Copies find each other inside one simulated Mac, which no other test shares.
class Workspace : Inside {
public:
    static std::unique_ptr<RunningApplications> applications() {
        return std::make_unique<LinuxRunningApplications>();
    }
};

class Login {
public:
    std::unique_ptr<LoginItem> item() {
        return std::make_unique<AutostartEntry>(m_folder.filePath(u"a/x.desktop"_s),
                                                QStringList{u"/opt/x/program"_s});
    }

private:
    QTemporaryDir m_folder;
};

class Machine : Inside {
public:
    std::unique_ptr<SystemInformation> information() {
        return std::make_unique<LinuxSystemInformation>();
    }
};

} // namespace kestrowind::ThisSystem
