#pragma once

namespace kestrowind {

/// Tells the system that the process does something that its user waits for. A system may let the
/// timers of one that does not, and that nobody looks at, go off many seconds late: later than the
/// helper waits for targets. Belongs to the main thread.
class UserActivity {
public:
    UserActivity() = default;
    UserActivity(const UserActivity&) = delete;
    UserActivity& operator=(const UserActivity&) = delete;
    virtual ~UserActivity() = default;

    virtual void setUnderWay(bool isUnderWay) = 0;
};

} // namespace kestrowind
