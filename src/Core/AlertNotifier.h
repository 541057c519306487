#pragma once

#include "Core/AlertRules.h"

#include <QObject>

#include <array>

namespace kestrowind {

class AppState;
class Notifications;
class UserDefaults;
struct Notification;

inline constexpr std::array alertKinds{AlertKind::helperFailed, AlertKind::fanStandsStill,
                                       AlertKind::overheating};

/// The key of the user default that says whether the user wants an alert.
[[nodiscard]] QString alertKey(AlertKind kind);
/// Every alert is wanted until the user says otherwise.
void registerAlertDefaults(UserDefaults& userDefaults);

/// The alert in the user's language.
[[nodiscard]] Notification notificationOf(const Alert& alert);

/// Watches the samples for what the user wants to hear of, and posts it. Belongs to the main
/// thread.
class AlertNotifier final : public QObject {
    Q_OBJECT

public:
    /// All three must outlive the notifier.
    AlertNotifier(AppState& appState, const UserDefaults& userDefaults,
                  Notifications& notifications);

private:
    void take(const TelemetrySample& sample);
    [[nodiscard]] AlertRules::Helper helperWork(const TelemetrySample& sample) const;

    AppState& m_appState;
    const UserDefaults& m_userDefaults;
    Notifications& m_notifications;
    AlertRules m_rules;
};

} // namespace kestrowind
