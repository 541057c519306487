#include "Core/AlertRules.h"

namespace kestrowind {

std::vector<Alert> AlertRules::take(const TelemetrySample& sample, const Helper& helper,
                                    const Choice& choice) {
    const TimePoint now = sample.timestamp;
    std::vector<Alert> alerts;

    const bool isFailing = helper.work == Helper::Work::failing;
    if (m_helper.take(choice.helperFailed && isFailing, now, std::chrono::seconds::zero()))
        alerts.push_back({.kind = AlertKind::helperFailed, .reason = helper.reason});
    if (helper.work == Helper::Work::done && m_helper.forget())
        alerts.push_back({.kind = AlertKind::helperFailed, .isOver = true});

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
