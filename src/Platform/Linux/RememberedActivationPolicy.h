#pragma once

#include "Platform/ActivationPolicy.h"

namespace kestrowind {

/// Where a hidden window has no entry in the taskbar anyway there is nothing to switch: the policy
/// is only remembered. An application comes to the front with its window.
class RememberedActivationPolicy final : public ActivationPolicy {
public:
    [[nodiscard]] Policy policy() const override { return m_policy; }
    void setPolicy(Policy policy) override { m_policy = policy; }
    void activate() override {}

private:
    Policy m_policy = Policy::regular;
};

} // namespace kestrowind
