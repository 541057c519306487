#pragma once

#include <chrono>

namespace kestrowind {

/// Ends this process when its loop hangs, whatever that loop is: launchd starts the next one, which
/// begins by handing back the fans that this one held. One object a process, made when the loop is
/// about to begin.
///
/// In a process that a signal stopped nothing runs, this included. It ends when it is continued.
class HangWatchdog {
public:
    /// A loop that was silent for this long hangs. An SMC that does not answer holds it up for four
    /// seconds when it is opened; after the heartbeat time the fans should have been handed back.
    static constexpr std::chrono::seconds patience{5};
    /// How often the loop says that it goes on.
    static constexpr std::chrono::seconds interval{1};

    HangWatchdog() { rearm(); }
    ~HangWatchdog();
    HangWatchdog(const HangWatchdog&) = delete;
    HangWatchdog& operator=(const HangWatchdog&) = delete;

    /// The loop goes on.
    void rearm();
};

} // namespace kestrowind
