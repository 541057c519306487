#pragma once

#include "Helper/FanController.h"
#include "Helper/HelperListener.h"

#include <chrono>
#include <expected>
#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace kestrowind {

/// What the helper does for those who reach it, however they do: its five methods, who holds the
/// fans, and what it takes from nobody.
///
/// Whoever set the targets last holds the fans; they go back to the system as soon as that
/// connection is gone. No caller is trusted: a caller that floods is hung up on, and so are the
/// idlest ones when there are too many. Lives on one thread.
class HelperService {
public:
    using Clock = FanController::Clock;

    static constexpr std::size_t mostCallers = 32;
    /// Far more than the application ever makes.
    static constexpr int mostCallsPerSecond = 200;

    /// Both references must outlive the service. The files are what uninstall() removes.
    HelperService(FanController& controller, HelperListener& listener,
                  std::vector<std::filesystem::path> installedFiles,
                  Clock now = &std::chrono::steady_clock::now);
    HelperService(const HelperService&) = delete;
    HelperService& operator=(const HelperService&) = delete;

    void callerCame(CallerID caller);
    void callerGone(CallerID caller);
    /// Counts a call, before anything is done for it; false when it is to be dropped: the caller
    /// makes too many, or was hung up on already.
    [[nodiscard]] bool admitCall(CallerID caller);

    /// See FanController::setTargets. While the machine is about to sleep nothing is taken.
    [[nodiscard]] std::expected<std::vector<double>, std::string>
    setTargets(CallerID caller, std::span<const double> targets);
    void releaseControl();
    [[nodiscard]] HelperStatus status();
    /// Gives the fans back and removes the installed files; false when one of them stays. The
    /// process is to end, with success, once the reply has reached its caller.
    [[nodiscard]] bool uninstall();

    void tick();

    /// The fans are the system's before the machine sleeps, and stay that until it has woken up
    /// and somebody sets targets.
    void systemWillSleep();
    void systemDidWake() { m_isAsleep = false; }

private:
    using TimePoint = std::chrono::steady_clock::time_point;

    struct Caller {
        bool hasCalled = false;
        TimePoint lastWord; ///< or when it came
        TimePoint secondBegan;
        int callsThisSecond = 0;
    };

    void makeRoom();
    void hangUp(CallerID caller);
    void logPhase();

    FanController& m_controller;
    HelperListener& m_listener;
    std::vector<std::filesystem::path> m_installedFiles;
    Clock m_now;
    std::map<CallerID, Caller> m_callers;
    std::optional<CallerID> m_holder; ///< who set the targets
    HelperControlPhase m_loggedPhase = HelperControlPhase::idle;
    bool m_isAsleep = false;
};

} // namespace kestrowind
