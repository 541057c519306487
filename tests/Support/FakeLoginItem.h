#pragma once

#include "Platform/LoginItem.h"

namespace kestrowind {

class FakeLoginItem final : public LoginItem {
public:
    bool enabled = false;
    bool isSwitchedOff = false; ///< in the system's settings
    QString failure;            ///< of every change, unless empty

    bool isEnabled() const override { return enabled; }
    bool needsApproval() const override { return isSwitchedOff; }
    std::expected<void, QString> registerApplication() override { return change(true); }
    std::expected<void, QString> unregisterApplication() override { return change(false); }

private:
    std::expected<void, QString> change(bool wanted) {
        if (!failure.isEmpty())
            return std::unexpected(failure);
        enabled = wanted;
        return {};
    }
};

} // namespace kestrowind
