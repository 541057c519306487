#pragma once

#include <QProcess>

#include <expected>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kestrowind {

/// A child process whose standard streams are the parent's. One that still runs is killed with it.
class ChildProcess final : public QProcess {
public:
    struct Command {
        std::vector<std::string> arguments; ///< the program first; searched in PATH without a slash
        std::map<std::string, std::string> environment; ///< added to the parent's
        /// Handed over as systemd does, but for LISTEN_PID, which only the child knows; -1: none.
        int listeningSocket = -1;
        int signalOnParentsDeath = 0;
        /// Out of reach of what the parent's terminal sends, as a daemon is.
        bool hasSessionOfItsOwn = false;
    };

    /// The error says why the program cannot be run.
    [[nodiscard]] static std::expected<std::unique_ptr<ChildProcess>, std::string>
    start(const Command& command);
    ~ChildProcess() override;

    [[nodiscard]] bool isRunning() const { return state() == Running; }
    /// As a shell tells it: the exit code, or 128 and the number of the signal that ended it.
    [[nodiscard]] int status() const;
    void sendSignal(int number) const;

private:
    ChildProcess() = default;
};

} // namespace kestrowind
