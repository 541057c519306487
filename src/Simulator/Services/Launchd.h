#pragma once

#include "Simulator/Services/ChildProcess.h"
#include "Simulator/Services/LaunchdJob.h"
#include "Simulator/Services/ListeningSocket.h"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <expected>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace kestrowind {

/// The launchd of a simulated Mac: holds the sockets of the Mach services of its jobs, and starts a
/// job's program when somebody connects while it does not run. A job that is to be kept alive until
/// it succeeds runs from its bootstrap on, and is started again when it fails or is killed.
class Launchd final {
public:
    /// What it knows of a job.
    struct JobState {
        std::optional<pid_t> pid;
        int starts = 0;
        std::optional<std::string> lastExit; ///< in words
    };
    using Result = std::expected<void, std::string>;

    explicit Launchd(std::filesystem::path root);
    ~Launchd();
    Launchd(const Launchd&) = delete;
    Launchd& operator=(const Launchd&) = delete;

    /// Takes on the job that the file describes. Errors are worded as by `launchctl`.
    [[nodiscard]] Result bootstrap(const std::filesystem::path& propertyList);
    /// Forgets a job and ends its program; done is called once that has ended, or at once with the
    /// error. A program that does not end on its own is killed after a while.
    void bootout(const std::string& label, std::function<void(Result)> done);
    /// Whether every bootstrap fails from now on; jobs that it already has stay.
    void setFailing(bool isFailing) { m_isFailing = isFailing; }
    /// Boots all jobs out; done is called after the last.
    void shutDown(std::function<void()> done);

    /// Absent unless the job is bootstrapped.
    [[nodiscard]] std::optional<JobState> job(const std::string& label) const;
    /// Sends a signal to a job's program; false when it does not run.
    [[nodiscard]] bool sendSignal(const std::string& label, int number);

private:
    struct Job {
        Job(LaunchdJob description, ListeningSocket listening);

        LaunchdJob description;
        ListeningSocket socket;
        QSocketNotifier notifier;
        std::unique_ptr<ChildProcess> process;
        QElapsedTimer sinceStart;
        JobState state;
        QTimer throttle;
        bool isWantedBack = false; ///< it is to run again without being asked for
    };
    struct Departure {
        std::unique_ptr<ChildProcess> process;
        std::function<void(Result)> done;
        QTimer patience;
    };

    void startProgram(Job& job);
    void refuseWaiting(Job& job);
    void programEnded(Job& job);
    void becomeReady(Job& job);
    void depart(std::unique_ptr<ChildProcess> process, std::function<void(Result)> done);

    std::filesystem::path m_root;
    bool m_isFailing = false;
    std::map<std::string, std::unique_ptr<Job>> m_jobs; ///< by label
    std::map<ChildProcess*, std::unique_ptr<Departure>> m_departures;
};

} // namespace kestrowind
