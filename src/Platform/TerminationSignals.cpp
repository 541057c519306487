#include "Platform/TerminationSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace kestrowind {
namespace {

constexpr std::array signalNumbers{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> wakeUpDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free);

// A signal handler may do next to nothing: one byte down the pipe wakes the event loop.
void wakeUp(int /*signalNumber*/) {
    const int savedError = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wakeUpDescriptor.load(), &byte, 1);
    errno = savedError;
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

void setHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers)
        ::sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent) {
    if (!openPipe(m_pipe))
        qFatal("no pipe for termination signals: errno %d", errno);
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes;
        while (::read(m_pipe[0], bytes.data(), bytes.size()) > 0) {
        }
        Q_EMIT terminationRequested();
    });
    wakeUpDescriptor = m_pipe[1];
    setHandler(&wakeUp);
}

TerminationSignals::~TerminationSignals() {
    setHandler(SIG_DFL);
    wakeUpDescriptor = -1;
    m_notifier.reset();
    ::close(m_pipe[0]);
    ::close(m_pipe[1]);
}

} // namespace kestrowind
