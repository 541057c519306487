#pragma once

#include "Platform/LoginItem.h"

namespace kestrowind {

/// The system's service management, for the bundle that runs.
class AppServiceLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] bool needsApproval() const override;
    [[nodiscard]] std::expected<void, QString> registerApplication() override;
    [[nodiscard]] std::expected<void, QString> unregisterApplication() override;
};

} // namespace kestrowind
