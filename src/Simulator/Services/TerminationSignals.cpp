#include "Simulator/Services/TerminationSignals.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/signalfd.h>
#include <unistd.h>

namespace kestrowind {

TerminationSignals::TerminationSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    m_descriptor = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    if (m_descriptor < 0)
        qFatal("signalfd: %s", strerror(errno));
}

TerminationSignals::~TerminationSignals() {
    m_notifier.reset();
    ::close(m_descriptor);
}

void TerminationSignals::watch() {
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &TerminationSignals::read);
}

void TerminationSignals::read() {
    signalfd_siginfo info{};
    while (::read(m_descriptor, &info, sizeof info) == ssize_t{sizeof info})
        Q_EMIT received(static_cast<int>(info.ssi_signo), info.ssi_code == SI_KERNEL);
}

} // namespace kestrowind
