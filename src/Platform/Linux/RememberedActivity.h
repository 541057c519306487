#pragma once

#include "Platform/UserActivity.h"

namespace kestrowind {

/// Where no system slows a process's timers down there is nobody to tell.
class RememberedActivity final : public UserActivity {
public:
    void setUnderWay(bool isUnderWay) override { m_isUnderWay = isUnderWay; }
    [[nodiscard]] bool isUnderWay() const { return m_isUnderWay; }

private:
    bool m_isUnderWay = false;
};

} // namespace kestrowind
