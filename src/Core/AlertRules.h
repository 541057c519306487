#pragma once

#include "Core/TelemetrySample.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrowind {

/// What a user wants to hear of without looking.
enum class AlertKind {
    helperFailed,   ///< the helper cannot drive the fans
    fanStandsStill, ///< a fan with a target above 0 does not turn
    overheating,    ///< the hottest sensor is too hot
};

struct Alert {
    AlertKind kind = AlertKind::helperFailed;
    std::string reason = {}; ///< helperFailed: the helper's own word, empty when it said nothing
    bool isOver = false;     ///< helperFailed: what was told of before holds no more
    int fanIndex = 0;        ///< fanStandsStill
    int fanCount = 0;        ///< fanStandsStill: how many fans the machine has
    double value = 0;        ///< fanStandsStill: its target, RPM; overheating: degrees Celsius

    bool operator==(const Alert&) const = default;
};

/// Decides from the samples when to alert. The samples' own times are the only clock. Heat and
/// standing fans have to hold for `patience` without a gap in the samples, and are told again only
/// after `silence`, however often they come and go: once an hour for each fan, and for the heat. A
/// failing helper counts at once, is told again after `silence` while it lasts, and told to be over
/// as soon as the helper does its work again.
class AlertRules {
public:
    using TimePoint = std::chrono::system_clock::time_point;

    static constexpr std::chrono::seconds patience{10};
    static constexpr std::chrono::hours silence{1};
    /// More than this between two samples, a sleep for instance, and a condition begins anew. One
    /// sample of the usual two seconds may be missing.
    static constexpr std::chrono::seconds longestGap{5};
    static constexpr double tooHot = 100; ///< degrees Celsius; hotter than this
    /// Less than one revolution a second is a tachometer's noise.
    static constexpr double stillBelow = 60; ///< RPM

    /// Which alerts are wanted. What is not wanted is as if it never happened.
    struct Choice {
        bool helperFailed = true;
        bool fanStandsStill = true;
        bool overheating = true;
    };

    /// How the helper does its work.
    struct Helper {
        enum class Work {
            done,
            pending, ///< it may come to either
            failing,
        };
        Work work = Work::done;
        std::string reason = {}; ///< failing: the helper's own word, empty when it said nothing
    };

    /// What is to be told now.
    [[nodiscard]] std::vector<Alert> take(const TelemetrySample& sample, const Helper& helper,
                                          const Choice& choice);

private:
    /// One condition over time.
    class Watch {
    public:
        /// Whether to tell of it now, when it has to hold for `wait`.
        [[nodiscard]] bool take(bool isHolding, TimePoint now, std::chrono::seconds wait);
        /// Whether it was told of; it is news again from now on.
        [[nodiscard]] bool forget() { return std::exchange(m_told, std::nullopt).has_value(); }

    private:
        std::optional<TimePoint> m_since; ///< absent while it does not hold
        std::optional<TimePoint> m_last;  ///< when it was last looked at
        std::optional<TimePoint> m_told;
    };

    Watch m_helper;
    Watch m_heat;
    std::map<int, Watch> m_fans; ///< by index
};

} // namespace kestrowind
