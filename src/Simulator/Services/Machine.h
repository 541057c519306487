#pragma once

#include "Simulator/Hardware/MachineHardware.h"
#include "Simulator/Services/Launchd.h"
#include "Simulator/Services/LoadSource.h"
#include "Simulator/Services/SMCService.h"

#include <QElapsedTimer>
#include <QTimer>

#include <expected>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace kestrowind {

/// A whole simulated Mac in one root folder, running in the event loop of its thread: hardware, SMC
/// service and launchd.
class Machine {
public:
    struct Setup {
        std::filesystem::path root;
        MachineProfile profile;
        LoadSource load;
    };

    /// Boots a machine. The error says why the root folder cannot be used, a machine that already
    /// runs in it among the reasons.
    [[nodiscard]] static std::expected<std::unique_ptr<Machine>, std::string> boot(Setup setup);
    ~Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    /// Puts a helper executable and its job description in place and bootstraps the job.
    [[nodiscard]] std::expected<void, std::string>
    installHelper(const std::filesystem::path& executable, const std::string& jobDescription);

    /// Puts the commands of an administrator's scripts where the Mac has them: all are one program.
    [[nodiscard]] std::expected<void, std::string>
    placeCommands(const std::filesystem::path& program);

    /// Ends the helper in good order; done is called when it is gone.
    void shutDown(std::function<void()> done);

    [[nodiscard]] const std::filesystem::path& root() const { return m_root; }
    [[nodiscard]] SimulatedSMC& smc() { return m_smc; }
    [[nodiscard]] const MachineHardware& hardware() const { return m_hardware; }
    [[nodiscard]] Launchd& launchd() { return m_launchd; }
    [[nodiscard]] const LoadSource& load() const { return m_load; }
    void setLoad(LoadSource load);

private:
    Machine(Setup setup, int lock);

    void tick();

    std::filesystem::path m_root;
    int m_lock; ///< descriptor of the locked file that says that a machine runs in this root
    LoadSource m_load;
    SimulatedSMC m_smc;
    MachineHardware m_hardware;
    std::unique_ptr<SMCService> m_service;
    Launchd m_launchd;
    QElapsedTimer m_sinceTick;
    QElapsedTimer m_sinceLoadSample;
    QTimer m_ticks;
};

} // namespace kestrowind
