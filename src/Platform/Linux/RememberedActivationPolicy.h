#pragma once

#include "Platform/ActivationPolicy.h"

namespace kestrowind {

/// Where a hidden window has no entry in the taskbar anyway there is nothing to switch: the policy
/// is only remembered.
class RememberedActivationPolicy final : public ActivationPolicy {
public:
    [[nodiscard]] Policy policy() const override { return m_policy; }
    void setPolicy(Policy policy) override { m_policy = policy; }

private:
    Policy m_policy = Policy::regular;
};

} // namespace kestrowind
