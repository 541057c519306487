#pragma once

#include "Platform/UserActivity.h"

#include <memory>

namespace kestrowind {

/// An activity of the process information: keeps the process from napping, and not the machine from
/// sleeping.
class ProcessActivity final : public UserActivity {
public:
    ProcessActivity();
    ~ProcessActivity() override;

    void setUnderWay(bool isUnderWay) override;

private:
    struct Token;
    std::unique_ptr<Token> m_token;
};

} // namespace kestrowind
