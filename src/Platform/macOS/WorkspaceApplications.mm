#include "Platform/macOS/WorkspaceApplications.h"

#import <AppKit/AppKit.h>

#include <libproc.h>
#include <optional>
#include <tuple>
#include <unistd.h>

namespace kestrowind {
namespace {

class WorkspaceApplication final : public RunningApplication {
public:
    explicit WorkspaceApplication(NSRunningApplication* application)
        : m_application(application) {}

    void terminate() override { [m_application terminate]; }
    void forceTerminate() override { [m_application forceTerminate]; }
    [[nodiscard]] bool isTerminated() const override { return m_application.terminated; }

private:
    NSRunningApplication* m_application;
};

/// In the order of their start; two of the same microsecond in the order of their numbers.
using Age = std::tuple<std::uint64_t, std::uint64_t, pid_t>;

/// Absent for a process that is gone.
std::optional<Age> ageOf(pid_t pid) {
    proc_bsdinfo facts{};
    const int size = static_cast<int>(sizeof facts);
    if (proc_pidinfo(pid, PROC_PIDTBSDINFO, 0, &facts, size) != size)
        return std::nullopt;
    return Age(facts.pbi_start_tvsec, facts.pbi_start_tvusec, pid);
}

} // namespace

std::vector<std::unique_ptr<RunningApplication>>
WorkspaceApplications::olderCopies(const QString& bundleIdentifier) {
    std::vector<std::unique_ptr<RunningApplication>> copies;
    const auto own = ageOf(::getpid());
    for (NSRunningApplication* application in [NSRunningApplication
             runningApplicationsWithBundleIdentifier:bundleIdentifier.toNSString()]) {
        const auto age = ageOf(application.processIdentifier);
        if (own && age && *age < *own)
            copies.push_back(std::make_unique<WorkspaceApplication>(application));
    }
    return copies;
}

} // namespace kestrowind
