#pragma once

#include "Platform/Notifications.h"

namespace kestrowind {

/// The system's notification centre, for the bundle that runs. The first notification asks the user
/// for leave, once.
class UserNotifications final : public Notifications {
public:
    UserNotifications();
    ~UserNotifications() override;

    void show(const Notification& notification) override;
    void withdraw(const QString& identifier) override;

private:
    struct Link;

    std::unique_ptr<Link> m_link;
};

} // namespace kestrowind
