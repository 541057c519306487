#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <expected>
#include <map>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace kestrowind {

/// A child process whose end is an event. Its standard streams are the parent's.
class ChildProcess final : public QObject {
    Q_OBJECT

public:
    struct Command {
        std::vector<std::string> arguments; ///< the program first; searched in PATH without a slash
        std::map<std::string, std::string> environment; ///< added to the parent's
        int listeningSocket = -1;                       ///< handed over as systemd does; -1: none
        int signalOnParentsDeath = 0;
        /// Out of reach of what the parent's terminal sends, as a daemon is.
        bool hasSessionOfItsOwn = false;
    };

    /// How a process ended: an exit code, or the signal that killed it.
    struct Exit {
        int code = 0;
        int signal = 0;
    };

    /// The error says why the program cannot be run.
    [[nodiscard]] static std::expected<std::unique_ptr<ChildProcess>, std::string>
    start(const Command& command);

    /// A process that still runs is killed.
    ~ChildProcess() override;

    [[nodiscard]] pid_t identifier() const { return m_identifier; }
    [[nodiscard]] bool isRunning() const { return m_descriptor >= 0; }
    void sendSignal(int number);

Q_SIGNALS:
    void ended(kestrowind::ChildProcess::Exit exit);

private:
    ChildProcess(pid_t identifier, int descriptor);
    void reap();

    pid_t m_identifier;
    int m_descriptor; ///< of the process; -1 once it has ended
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace kestrowind
