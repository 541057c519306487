#include "Core/AlertNotifier.h"

#include "Core/AppState.h"
#include "Core/FanNaming.h"
#include "Core/LocalizedText.h"
#include "Core/Logging.h"
#include "Core/OneLine.h"
#include "Platform/Notifications.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// The reason is the helper's word, not ours: a notification has room for a line or two of it.
constexpr qsizetype longestReason = 200;

const QString helperIdentifier = u"helper"_s;

QString reasonText(const std::string& reason) {
    const QString text = oneLine(QString::fromStdString(reason)).trimmed();
    return text.size() <= longestReason ? text : text.left(longestReason) + u'…';
}

} // namespace

QString alertKey(AlertKind kind) {
    switch (kind) {
    case AlertKind::helperFailed:
        return u"notifiesHelperFailure"_s;
    case AlertKind::fanStandsStill:
        return u"notifiesStandingFan"_s;
    case AlertKind::overheating:
        break;
    }
    return u"notifiesOverheating"_s;
}

void registerAlertDefaults(UserDefaults& userDefaults) {
    for (const AlertKind kind : alertKinds)
        userDefaults.registerDefault(alertKey(kind), true);
}

Notification notificationOf(const Alert& alert) {
    switch (alert.kind) {
    case AlertKind::helperFailed: {
        const QString reason = reasonText(alert.reason);
        return {.identifier = helperIdentifier,
                .title = localized("alert.helperFailed.title"),
                .body = reason.isEmpty()
                            ? localized("alert.helperFailed.body")
                            : localized("alert.helperFailed.bodyWithReason").arg(reason)};
    }
    case AlertKind::fanStandsStill:
        return {.identifier = u"fan-"_s + QString::number(alert.fanIndex),
                .title = localized("alert.fanStandsStill.title")
                             .arg(sharedFanName(alert.fanIndex, alert.fanCount)),
                .body = localized("alert.fanStandsStill.body").arg(std::lround(alert.value))};
    case AlertKind::overheating:
        break;
    }
    return {.identifier = u"heat"_s,
            .title = localized("alert.overheating.title"),
            .body = localized("alert.overheating.body").arg(std::lround(alert.value))};
}

AlertNotifier::AlertNotifier(AppState& appState, const UserDefaults& userDefaults,
                             Notifications& notifications)
    : m_appState(appState)
    , m_userDefaults(userDefaults)
    , m_notifications(notifications) {
    appState.telemetry().onSample(this, [this](const TelemetrySample& sample) { take(sample); });
    // Not only with the next sample.
    connect(&appState.engine().watch(), &ControlWatch::isDeniedChanged, this, [this] {
        if (const auto& latest = m_appState.telemetry().latest())
            take(*latest);
    });
}

AlertRules::Helper AlertNotifier::helperWork(const TelemetrySample& sample) const {
    using Work = AlertRules::Helper::Work;
    const ControlState::Facts& control = m_appState.control().facts();
    const auto isWanted = [](double percent) { return percent > 0; };
    const bool isAnyHeld =
        std::ranges::any_of(sample.fans, [](const auto& fan) { return fan.isManual(); });
    // Nothing is asked of a helper that is not there, but it may have left a fan at its last speed.
    if (control.isHelperMissing())
        return {isAnyHeld ? Work::pending : Work::done};
    // Unless a fan was left so, a helper without work may be silent.
    const bool matters =
        std::ranges::any_of(m_appState.engine().requestedPercents(), isWanted) || isAnyHeld;
    if (control.isDenied)
        return {matters ? Work::failing : Work::pending};
    // The last word of a helper that is gone says nothing of now.
    if (control.helper == HelperState::unreachable || !control.status || control.isTakingControl())
        return {Work::pending};
    if (control.hasFailed())
        return {Work::failing, control.status->lastError.value_or("")};
    return {Work::done};
}

void AlertNotifier::take(const TelemetrySample& sample) {
    const auto isWanted = [this](AlertKind kind) { return m_userDefaults.boolean(alertKey(kind)); };
    const AlertRules::Choice choice{.helperFailed = isWanted(AlertKind::helperFailed),
                                    .fanStandsStill = isWanted(AlertKind::fanStandsStill),
                                    .overheating = isWanted(AlertKind::overheating)};
    for (const Alert& alert : m_rules.take(sample, helperWork(sample), choice)) {
        if (alert.isOver) {
            qCInfo(shellLog).noquote() << "alert is over:" << helperIdentifier;
            m_notifications.withdraw(helperIdentifier);
            continue;
        }
        const Notification notification = notificationOf(alert);
        qCInfo(shellLog).noquote() << "alert:" << notification.identifier << notification.body;
        m_notifications.show(notification);
    }
}

} // namespace kestrowind
