#include "Simulator/Services/ChildProcess.h"

#include <QStandardPaths>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

extern "C" {
// glibc 2.36 forgets to say that these are C.
#include <sys/pidfd.h>
}

namespace kestrowind {
namespace {

// Descriptor number at which a program finds the first socket that it was started for.
constexpr int firstListeningSocket = 3;
constexpr std::string_view processVariable = "LISTEN_PID=";

/// Everything that exec needs, made before the fork: afterwards no memory may be allocated.
struct Preparation {
    explicit Preparation(const ChildProcess::Command& command)
        : program(command.arguments.front()) {
        if (!program.contains('/'))
            program = QStandardPaths::findExecutable(QString::fromStdString(program)).toStdString();
        for (char** variable = environ; *variable != nullptr; ++variable) {
            const std::string_view text = *variable;
            // Sockets handed to the parent are not for its children.
            if (!text.starts_with("LISTEN_") &&
                !command.environment.contains(std::string(text.substr(0, text.find('=')))))
                environment.emplace_back(text);
        }
        for (const auto& [name, value] : command.environment)
            environment.push_back(name + "=" + value);
        if (command.listeningSocket >= 0) {
            environment.emplace_back("LISTEN_FDS=1");
            environment.emplace_back(processVariable).append(20, '\0');
        }
        for (const std::string& argument : command.arguments)
            argumentPointers.push_back(const_cast<char*>(argument.c_str()));
        argumentPointers.push_back(nullptr);
        for (std::string& variable : environment)
            environmentPointers.push_back(variable.data());
        environmentPointers.push_back(nullptr);
    }

    std::string program; ///< its file; empty when there is none
    std::vector<std::string> environment;
    std::vector<char*> argumentPointers;
    std::vector<char*> environmentPointers;
};

/// Runs in the child, where only async-signal-safe calls are allowed. Returns only on failure.
void become(const ChildProcess::Command& command, Preparation& preparation, pid_t parent) {
    if (command.signalOnParentsDeath != 0) {
        ::prctl(PR_SET_PDEATHSIG, command.signalOnParentsDeath);
        // The parent may have died just before.
        if (::getppid() != parent)
            ::_exit(1);
    }
    if (command.hasSessionOfItsOwn)
        ::setsid();
    if (command.listeningSocket >= 0) {
        std::string& variable = preparation.environment.back();
        std::to_chars(variable.data() + processVariable.size(), variable.data() + variable.size(),
                      ::getpid());
        if (command.listeningSocket == firstListeningSocket)
            ::fcntl(firstListeningSocket, F_SETFD, 0);
        else if (::dup2(command.listeningSocket, firstListeningSocket) < 0)
            return;
    }
    // The parent's handlers are not for what the child is told.
    for (int number = 1; number < NSIG; ++number) {
        struct sigaction action {};
        ::sigaction(number, nullptr, &action);
        if (action.sa_handler != SIG_IGN)
            ::signal(number, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    // No search for the program here: that would hand a file that is none to a shell.
    ::execve(preparation.program.c_str(), preparation.argumentPointers.data(),
             preparation.environmentPointers.data());
}

} // namespace

std::expected<std::unique_ptr<ChildProcess>, std::string>
ChildProcess::start(const Command& command) {
    const auto failure = [&command](int error) {
        return std::unexpected("cannot run " + command.arguments.front() + ": " +
                               std::strerror(error));
    };
    Preparation preparation(command);
    // A successful exec closes the pipe, a failed one sends its reason through it. It must keep
    // clear of the descriptor that the listening socket will take.
    std::array<int, 2> report{};
    if (::pipe2(report.data(), O_CLOEXEC) != 0)
        return failure(errno);
    const int reportEnd = ::fcntl(report[1], F_DUPFD_CLOEXEC, firstListeningSocket + 1);
    ::close(report[1]);
    const pid_t parent = ::getpid();
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = ::fork();
    if (child == 0) {
        become(command, preparation, parent);
        const int error = errno;
        (void)!::write(reportEnd, &error, sizeof error);
        ::_exit(127);
    }
    int error = child < 0 ? errno : 0;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ::close(reportEnd);
    if (child > 0 && ::read(report[0], &error, sizeof error) == ssize_t{sizeof error})
        ::waitpid(child, nullptr, 0);
    ::close(report[0]);
    if (error != 0)
        return failure(error);
    const int descriptor = ::pidfd_open(child, 0);
    if (descriptor < 0) {
        error = errno;
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        return failure(error);
    }
    return std::unique_ptr<ChildProcess>(new ChildProcess(child, descriptor));
}

ChildProcess::ChildProcess(pid_t identifier, int descriptor)
    : m_identifier(identifier)
    , m_descriptor(descriptor)
    , m_notifier(std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read)) {
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &ChildProcess::reap);
}

ChildProcess::~ChildProcess() {
    if (!isRunning())
        return;
    m_notifier.reset();
    ::kill(m_identifier, SIGKILL);
    ::waitpid(m_identifier, nullptr, 0);
    ::close(m_descriptor);
}

void ChildProcess::sendSignal(int number) {
    if (isRunning())
        ::pidfd_send_signal(m_descriptor, number, nullptr, 0);
}

void ChildProcess::reap() {
    int status = 0;
    if (::waitpid(m_identifier, &status, WNOHANG) != m_identifier)
        return;
    m_notifier->setEnabled(false);
    ::close(std::exchange(m_descriptor, -1));
    if (WIFSIGNALED(status))
        Q_EMIT ended({.code = 128 + WTERMSIG(status), .signal = WTERMSIG(status)});
    else
        Q_EMIT ended({.code = WEXITSTATUS(status), .signal = 0});
}

} // namespace kestrowind
