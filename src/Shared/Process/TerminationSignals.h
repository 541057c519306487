#pragma once

#include <chrono>
#include <optional>

namespace kestrowind {

/// SIGTERM, SIGINT and SIGHUP as something that an event loop can wait for, so that being told to
/// end from outside takes the same path as any other end. Those that the process was started to
/// ignore stay ignored. One object a process.
class TerminationSignals {
public:
    struct Signal {
        int number = 0;
        int code = 0; ///< the system's `si_code`: what sent it
    };

    /// A process that has not ended so long after the first of them, as its event loop hangs, is
    /// ended without it, with the status 1, by the process's alarm. Zero leaves it alone.
    explicit TerminationSignals(std::chrono::seconds patience = {});
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    /// Can be read from once a signal has come, which is what an event loop watches.
    [[nodiscard]] int descriptor() const { return m_pipe[0]; }
    /// The next of those that have come; absent when there is none.
    [[nodiscard]] std::optional<Signal> take();

private:
    int m_pipe[2] = {-1, -1};
};

} // namespace kestrowind
