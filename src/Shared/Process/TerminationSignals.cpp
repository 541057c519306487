#include "Shared/Process/TerminationSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace kestrowind {
namespace {

constexpr std::array signalNumbers{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> wakeUpDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free);
std::atomic<unsigned> patienceSeconds = 0; ///< zero also once the alarm is set
static_assert(std::atomic<unsigned>::is_always_lock_free);

// A signal handler may do next to nothing: a few bytes down the pipe wake the event loop.
void wakeUp(int number, siginfo_t* information, void* /*context*/) {
    const int savedError = errno;
    const TerminationSignals::Signal signal{.number = number, .code = information->si_code};
    [[maybe_unused]] const ssize_t written =
        ::write(wakeUpDescriptor.load(), &signal, sizeof signal);
    if (const unsigned seconds = patienceSeconds.exchange(0); seconds > 0)
        ::alarm(seconds);
    errno = savedError;
}

void giveUp(int /*number*/) {
    ::_exit(EXIT_FAILURE);
}

/// False when the system has none left.
bool openPipe(int (&ends)[2]) {
    if (::pipe(ends) != 0)
        return false;
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

void setAction(const struct sigaction& action) {
    for (const int number : signalNumbers) {
        struct sigaction earlier {};
        ::sigaction(number, nullptr, &earlier);
        if (earlier.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
}

} // namespace

TerminationSignals::TerminationSignals(std::chrono::seconds patience) {
    if (!openPipe(m_pipe)) {
        std::perror("no pipe for termination signals");
        std::abort();
    }
    wakeUpDescriptor = m_pipe[1];
    if (patience.count() > 0) {
        patienceSeconds = static_cast<unsigned>(patience.count());
        std::signal(SIGALRM, &giveUp);
    }
    struct sigaction action {};
    action.sa_sigaction = &wakeUp;
    action.sa_flags = SA_RESTART | SA_SIGINFO;
    setAction(action);
}

TerminationSignals::~TerminationSignals() {
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    setAction(action);
    wakeUpDescriptor = -1;
    ::close(m_pipe[0]);
    ::close(m_pipe[1]);
}

std::optional<TerminationSignals::Signal> TerminationSignals::take() {
    Signal signal;
    if (::read(m_pipe[0], &signal, sizeof signal) != ssize_t{sizeof signal})
        return std::nullopt;
    return signal;
}

} // namespace kestrowind
