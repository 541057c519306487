#include "Core/AlertRules.h"

namespace kestrowind {

std::vector<Alert> AlertRules::take(const TelemetrySample& sample,
                                    const std::optional<HelperStatus>& status,
                                    const Choice& choice) {
    const TimePoint now = sample.timestamp;
    std::vector<Alert> alerts;

    const bool hasFailed = status && status->phase == HelperControlPhase::failed;
    if (m_helper.take(choice.helperFailed && hasFailed, now, std::chrono::seconds::zero()))
        alerts.push_back(
            {.kind = AlertKind::helperFailed, .reason = status->lastError.value_or("")});

    for (const SMCFanReading& fan : sample.fans) {
        const bool isStill = fan.targetRPM > 0 && fan.actualRPM < stillBelow;
        if (m_fans[fan.index].take(choice.fanStandsStill && isStill, now, patience))
            alerts.push_back({.kind = AlertKind::fanStandsStill,
                              .fanIndex = fan.index,
                              .fanCount = static_cast<int>(sample.fans.size()),
                              .value = fan.targetRPM});
    }

    const double hottest = sample.temperatures.hottest;
    if (m_heat.take(choice.overheating && hottest > tooHot, now, patience))
        alerts.push_back({.kind = AlertKind::overheating, .value = hottest});
    return alerts;
}

bool AlertRules::Watch::take(bool isHolding, TimePoint now, std::chrono::seconds wait) {
    const bool isUnbroken = m_last && now >= *m_last && now - *m_last <= longestGap;
    m_last = now;
    // A clock that was set back must not stretch the silence.
    if (m_told && now < *m_told)
        m_told = now;
    if (!isHolding) {
        m_since.reset();
        return false;
    }
    if (!m_since || !isUnbroken)
        m_since = now;
    if (now - *m_since < wait || (m_told && now - *m_told < silence))
        return false;
    m_told = now;
    return true;
}

} // namespace kestrowind
