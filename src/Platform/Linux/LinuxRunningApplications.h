#pragma once

#include "Platform/RunningApplications.h"

namespace kestrowind {

/// Copies of this very program by the same user inside the same simulated Mac, found in /proc.
class LinuxRunningApplications final : public RunningApplications {
public:
    [[nodiscard]] std::vector<std::unique_ptr<RunningApplication>>
    olderCopies(const QString& bundleIdentifier) override;
};

} // namespace kestrowind
