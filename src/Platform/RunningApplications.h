#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace kestrowind {

/// Another running copy of an application.
class RunningApplication {
public:
    RunningApplication() = default;
    RunningApplication(const RunningApplication&) = delete;
    RunningApplication& operator=(const RunningApplication&) = delete;
    virtual ~RunningApplication() = default;

    /// Asks it to end, as its own quit command would.
    virtual void terminate() = 0;
    virtual void forceTerminate() = 0;
    [[nodiscard]] virtual bool isTerminated() const = 0;
};

/// Which copies of an application run in the user's session of this machine.
class RunningApplications {
public:
    RunningApplications() = default;
    RunningApplications(const RunningApplications&) = delete;
    RunningApplications& operator=(const RunningApplications&) = delete;
    virtual ~RunningApplications() = default;

    /// The copies that started before this process. A copy that starts at the same moment is the
    /// newer one or the older one, never both, so two of them do not end each other.
    [[nodiscard]] virtual std::vector<std::unique_ptr<RunningApplication>>
    olderCopies(const QString& bundleIdentifier) = 0;
};

} // namespace kestrowind
