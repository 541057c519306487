#pragma once

#include "Shared/Process/TerminationSignals.h"
#include "Simulator/Program/SimulatorOptions.h"
#include "Simulator/Services/ChildProcess.h"
#include "Simulator/Services/ControlService.h"
#include "Simulator/Services/Machine.h"

#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>

#include <expected>
#include <memory>
#include <optional>
#include <string>

namespace kestrowind {

/// One run of the simulator: a machine, the command inside it, and the end of both.
class SimulatorSession {
public:
    /// An exit status and what there is to say about it.
    struct Failure {
        int status;
        std::string message;
    };

    SimulatorSession();

    /// Boots the machine and starts the command. With a value the event loop is to be entered; it
    /// ends with the exit status.
    [[nodiscard]] std::expected<void, Failure> start(SimulatorOptions options);

private:
    [[nodiscard]] std::expected<void, std::string> boot(SimulatorOptions& options);
    [[nodiscard]] std::expected<void, std::string>
    runCommand(const std::vector<std::string>& command);
    void passOn(TerminationSignals::Signal signal);
    void shutDown(int status);

    TerminationSignals m_signals;
    std::unique_ptr<QSocketNotifier> m_signalNotifier;
    std::unique_ptr<QTemporaryDir> m_temporaryRoot;
    std::unique_ptr<Machine> m_machine;
    std::optional<MachineControl> m_control;
    std::optional<ControlService> m_controlService;
    std::unique_ptr<ChildProcess> m_command;
    QTimer m_patience;
    bool m_isShuttingDown = false;
};

} // namespace kestrowind
