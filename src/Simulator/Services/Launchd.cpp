#include "Simulator/Services/Launchd.h"

#include "Simulator/Link/SimulatedMac.h"

#include <chrono>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace kestrowind {
namespace {

// A program that ends sooner than this after its start is started again only when it is over.
constexpr std::chrono::milliseconds shortestRun{500};
// How long a program has for its last deeds.
constexpr std::chrono::seconds exitPatience{3};

std::string inWords(const ChildProcess& ended) {
    const bool wasKilled = ended.exitStatus() == ChildProcess::CrashExit;
    return (wasKilled ? "killed by signal " : "exited with status ") +
           std::to_string(ended.exitCode());
}

} // namespace

Launchd::Job::Job(LaunchdJob job, ListeningSocket listening)
    : description(std::move(job))
    , socket(std::move(listening))
    , notifier(socket.descriptor(), QSocketNotifier::Read) {
    throttle.setSingleShot(true);
}

Launchd::Launchd(std::filesystem::path root)
    : m_root(std::move(root)) {}

Launchd::~Launchd() = default;

Launchd::Result Launchd::bootstrap(const std::filesystem::path& propertyList) {
    // The real one reports a job that it already has, and one that it cannot read, in these words
    // as well; what is really wrong helps here.
    const auto failure = [](const std::string& why) {
        return std::unexpected("Bootstrap failed: 5: Input/output error (" + why + ")");
    };
    if (m_isFailing)
        return failure("launchd was told to fail");
    auto description = readLaunchdJob(propertyList);
    if (!description)
        return failure(propertyList.string() + ": " + description.error());
    if (m_jobs.contains(description->label))
        return failure(description->label + " is already bootstrapped");
    auto socket = ListeningSocket::listen(
        SimulatedMac::serviceSocket(m_root, description->machService), SOCK_STREAM);
    if (!socket)
        return failure(socket.error());
    const std::string label = description->label;
    auto job = std::make_unique<Job>(std::move(*description), std::move(*socket));
    const auto start = [this, at = job.get()] { startProgram(*at); };
    QObject::connect(&job->notifier, &QSocketNotifier::activated, &job->throttle, start);
    QObject::connect(&job->throttle, &QTimer::timeout, &job->throttle,
                     [this, at = job.get()] { becomeReady(*at); });
    Job& taken = *m_jobs.emplace(label, std::move(job)).first->second;
    if (taken.description.isKeptAliveUntilItSucceeds)
        startProgram(taken);
    return {};
}

void Launchd::startProgram(Job& job) {
    job.notifier.setEnabled(false);
    ChildProcess::Command command{.arguments = job.description.programArguments,
                                  .environment = {{SimulatedMac::rootVariable, m_root.string()}},
                                  .listeningSocket = job.socket.descriptor(),
                                  .signalOnParentsDeath = SIGKILL,
                                  .hasSessionOfItsOwn = true};
    command.arguments.front() =
        SimulatedMac::systemPath(m_root, command.arguments.front()).string();
    job.sinceStart.start();
    auto process = ChildProcess::start(command);
    if (!process) {
        job.state.lastExit = process.error();
        refuseWaiting(job);
        return;
    }
    job.process = std::move(*process);
    job.state.pid = static_cast<pid_t>(job.process->processId());
    ++job.state.starts;
    QObject::connect(job.process.get(), &ChildProcess::finished, &job.throttle,
                     [this, &job] { programEnded(job); });
}

void Launchd::refuseWaiting(Job& job) {
    // Nobody will ever answer those who wait, so they are told by hanging up.
    for (;;) {
        const int caller = ::accept4(job.socket.descriptor(), nullptr, nullptr, SOCK_CLOEXEC);
        if (caller < 0)
            break;
        ::close(caller);
    }
    job.notifier.setEnabled(true);
}

void Launchd::programEnded(Job& job) {
    ChildProcess* const ended = job.process.release();
    job.state.pid.reset();
    job.state.lastExit = inWords(*ended);
    job.isWantedBack = job.description.isKeptAliveUntilItSucceeds && ended->status() != 0;
    ended->deleteLater();
    const auto run = std::chrono::milliseconds(job.sinceStart.elapsed());
    if (run < shortestRun)
        job.throttle.start(shortestRun - run);
    else
        becomeReady(job);
}

void Launchd::becomeReady(Job& job) {
    if (std::exchange(job.isWantedBack, false))
        startProgram(job);
    else
        job.notifier.setEnabled(true);
}

void Launchd::bootout(const std::string& label, std::function<void(Result)> done) {
    auto found = m_jobs.extract(label);
    if (found.empty()) {
        done(std::unexpected("Boot-out failed: 3: No such process"));
        return;
    }
    const std::unique_ptr<Job> job = std::move(found.mapped());
    if (job->process)
        depart(std::move(job->process), std::move(done));
    else
        done({});
}

void Launchd::depart(std::unique_ptr<ChildProcess> process, std::function<void(Result)> done) {
    ChildProcess* const leaving = process.get();
    auto& departure = *(m_departures[leaving] = std::make_unique<Departure>());
    departure.process = std::move(process);
    departure.done = std::move(done);
    departure.patience.setSingleShot(true);
    QObject::connect(&departure.patience, &QTimer::timeout, leaving,
                     [leaving] { leaving->sendSignal(SIGKILL); });
    QObject::connect(leaving, &ChildProcess::finished, leaving, [this, leaving] {
        const auto gone = std::move(m_departures.extract(leaving).mapped());
        gone->process.release()->deleteLater();
        gone->done({});
    });
    departure.patience.start(exitPatience);
    leaving->sendSignal(SIGTERM);
}

void Launchd::shutDown(std::function<void()> done) {
    auto remaining = std::make_shared<std::size_t>(m_jobs.size() + 1);
    const auto oneDone = [remaining, done = std::move(done)](const Result&) {
        if (--*remaining == 0)
            done();
    };
    while (!m_jobs.empty())
        bootout(m_jobs.begin()->first, oneDone);
    oneDone({});
}

std::optional<Launchd::JobState> Launchd::job(const std::string& label) const {
    const auto found = m_jobs.find(label);
    if (found == m_jobs.end())
        return std::nullopt;
    return found->second->state;
}

bool Launchd::sendSignal(const std::string& label, int number) {
    const auto found = m_jobs.find(label);
    if (found == m_jobs.end() || !found->second->process)
        return false;
    found->second->process->sendSignal(number);
    return true;
}

} // namespace kestrowind
