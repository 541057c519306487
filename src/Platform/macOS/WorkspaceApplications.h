#pragma once

#include "Platform/RunningApplications.h"

namespace kestrowind {

/// The copies of a bundle that the window server knows of. The kernel says when each was started.
class WorkspaceApplications final : public RunningApplications {
public:
    [[nodiscard]] std::vector<std::unique_ptr<RunningApplication>>
    olderCopies(const QString& bundleIdentifier) override;
};

} // namespace kestrowind
