#include "Simulator/Services/ChildProcess.h"

#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

// Descriptor number at which a program finds the first socket that it was started for.
constexpr int firstListeningSocket = 3;

QProcessEnvironment environmentFor(const ChildProcess::Command& command) {
    auto environment = QProcessEnvironment::systemEnvironment();
    // Sockets handed to the parent are not for its children.
    for (const QString& name : {u"LISTEN_FDS"_s, u"LISTEN_FDNAMES"_s, u"LISTEN_PID"_s})
        environment.remove(name);
    if (command.listeningSocket >= 0)
        environment.insert(u"LISTEN_FDS"_s, u"1"_s);
    for (const auto& [name, value] : command.environment)
        environment.insert(QString::fromStdString(name), QString::fromStdString(value));
    return environment;
}

/// Keeps every signal from this thread: a child must not run its parent's handlers.
class SignalsBlocked {
public:
    SignalsBlocked() {
        sigset_t all;
        sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;

private:
    sigset_t m_before{};
};

/// Runs in the child before the program, where only async-signal-safe calls are allowed.
void prepareChild(const ChildProcess::Command& command, pid_t parent) {
    if (command.signalOnParentsDeath != 0) {
        ::prctl(PR_SET_PDEATHSIG, command.signalOnParentsDeath);
        // The parent may have died just before.
        if (::getppid() != parent)
            ::_exit(1);
    }
    if (command.hasSessionOfItsOwn)
        ::setsid();
    if (command.listeningSocket >= 0) {
        if (::dup2(command.listeningSocket, firstListeningSocket) < 0)
            ::_exit(1);
        // It may have been there already.
        ::fcntl(firstListeningSocket, F_SETFD, 0);
    }
    for (int number = 1; number < NSIG; ++number) {
        struct sigaction action {};
        ::sigaction(number, nullptr, &action);
        if (action.sa_handler != SIG_IGN)
            ::signal(number, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

} // namespace

std::expected<std::unique_ptr<ChildProcess>, std::string>
ChildProcess::start(const Command& command) {
    const std::string& name = command.arguments.front();
    const auto failure = [&name](const QString& why) {
        return std::unexpected("cannot run " + name + ": " + why.toStdString());
    };
    const QString program = name.contains('/')
                                ? QString::fromStdString(name)
                                : QStandardPaths::findExecutable(QString::fromStdString(name));
    if (program.isEmpty())
        return failure(qt_error_string(ENOENT));
    QStringList arguments;
    for (std::size_t index = 1; index < command.arguments.size(); ++index)
        arguments.append(QString::fromStdString(command.arguments[index]));

    std::unique_ptr<ChildProcess> child(new ChildProcess);
    child->setInputChannelMode(ForwardedInputChannel);
    child->setProcessChannelMode(ForwardedChannels);
    child->setProcessEnvironment(environmentFor(command));
    child->setChildProcessModifier(
        [&command, parent = ::getpid()] { prepareChild(command, parent); });
    const SignalsBlocked signalsBlocked;
    child->QProcess::start(program, arguments);
    if (!child->waitForStarted(-1))
        return failure(child->errorString().section(u": "_s, -1)); // behind the system call's name
    return child;
}

ChildProcess::~ChildProcess() {
    disconnect();
    kill();
    waitForFinished(-1);
}

int ChildProcess::status() const {
    return exitStatus() == NormalExit ? exitCode() : 128 + exitCode();
}

void ChildProcess::sendSignal(int number) const {
    if (isRunning())
        ::kill(static_cast<pid_t>(processId()), number);
}

} // namespace kestrowind
