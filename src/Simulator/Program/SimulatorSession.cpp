#include "Simulator/Program/SimulatorSession.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <csignal>
#include <cstdio>

namespace kestrowind {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int bootFailed = 2;
constexpr int cannotRun = 127;

// How long the command has to end after it was asked to: quitting, the application may wait in vain
// for the replies to two calls.
constexpr std::chrono::seconds commandPatience = 2 * HelperConstants::callTimeout + 2s;

std::expected<std::string, std::string> jobDescription() {
    QFile file(u":/launchd/helper.plist"_s);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(file.errorString().toStdString());
    return file.readAll().toStdString();
}

/// For a shell.
QString quoted(QString word) {
    return u'\'' + word.replace(u"'"_s, u"'\\''"_s) + u'\'';
}

/// A program that is built beside this one.
std::filesystem::path sibling(const char* name) {
    return std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()) / name;
}

} // namespace

SimulatorSession::SimulatorSession() {
    m_patience.setSingleShot(true);
    QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] {
        if (m_command)
            m_command->sendSignal(SIGKILL);
    });
}

std::expected<void, SimulatorSession::Failure> SimulatorSession::start(SimulatorOptions options) {
    if (auto booted = boot(options); !booted)
        return std::unexpected(Failure{bootFailed, std::move(booted.error())});
    m_signalNotifier =
        std::make_unique<QSocketNotifier>(m_signals.descriptor(), QSocketNotifier::Read);
    QObject::connect(m_signalNotifier.get(), &QSocketNotifier::activated, &m_patience, [this] {
        while (const auto signal = m_signals.take())
            passOn(*signal);
    });
    if (options.command.empty())
        return {};
    if (auto running = runCommand(options.command); !running)
        return std::unexpected(Failure{cannotRun, std::move(running.error())});
    return {};
}

std::expected<void, std::string> SimulatorSession::boot(SimulatorOptions& options) {
    if (!options.root) {
        m_temporaryRoot = std::make_unique<QTemporaryDir>();
        if (!m_temporaryRoot->isValid())
            return std::unexpected(m_temporaryRoot->errorString().toStdString());
    }
    auto machine = Machine::boot(
        {.root = m_temporaryRoot ? m_temporaryRoot->path().toStdString() : *options.root,
         .profile = std::move(options.profile),
         .load = options.load});
    if (!machine)
        return std::unexpected(std::move(machine.error()));
    m_machine = std::move(*machine);
    if (m_temporaryRoot)
        std::fprintf(stderr,
                     "To change this Mac: %s ctl --root %s COMMAND (status, helper kill, ...)\n",
                     qPrintable(quoted(QCoreApplication::applicationFilePath())),
                     qPrintable(quoted(QString::fromStdString(m_machine->root().string()))));
    m_control.emplace(*m_machine);
    m_controlService.emplace(*m_control);
    if (auto listening = m_controlService->listen(m_machine->root()); !listening)
        return listening;
    if (auto placed = m_machine->placeCommands(sibling("kestrowind-simulated-osascript")); !placed)
        return placed;
    if (!options.isHelperInstalled)
        return {};
    const auto job = jobDescription();
    if (!job)
        return std::unexpected(job.error());
    return m_machine->installHelper(sibling("kestrowind-simulated-helper"), *job);
}

std::expected<void, std::string>
SimulatorSession::runCommand(const std::vector<std::string>& command) {
    auto process = ChildProcess::start(
        {.arguments = command,
         .environment = {{SimulatedMac::rootVariable, m_machine->root().string()}},
         .listeningSocket = -1,
         .signalOnParentsDeath = SIGTERM});
    if (!process)
        return std::unexpected(std::move(process.error()));
    m_command = std::move(*process);
    QObject::connect(m_command.get(), &ChildProcess::finished, m_command.get(),
                     [this] { shutDown(m_command->status()); });
    return {};
}

void SimulatorSession::passOn(TerminationSignals::Signal signal) {
    if (!m_command || !m_command->isRunning()) {
        shutDown(0);
        return;
    }
    // What the kernel sent came from the terminal, and to the command as well.
    if (signal.code != SI_KERNEL)
        m_command->sendSignal(signal.number);
    if (!m_patience.isActive())
        m_patience.start(commandPatience);
}

void SimulatorSession::shutDown(int status) {
    if (m_isShuttingDown)
        return;
    m_isShuttingDown = true;
    m_machine->shutDown([status] { QCoreApplication::exit(status); });
}

} // namespace kestrowind
