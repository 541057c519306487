#pragma once

#include "Platform/ActivationPolicy.h"

namespace kestrowind {

/// The application object's activation policy: with or without a Dock icon.
class DockActivationPolicy final : public ActivationPolicy {
public:
    [[nodiscard]] Policy policy() const override;
    void setPolicy(Policy policy) override;
    void activate() override;
};

} // namespace kestrowind
