#pragma once

#include "Platform/Notifications.h"

#include <QDBusConnection>
#include <QHash>
#include <QSet>

class QDBusPendingCallWatcher;

namespace kestrowind {

/// The desktop's notification service on the session bus.
class BusNotifications final : public Notifications {
    Q_OBJECT

public:
    /// Without a bus, or a service on it, nothing is shown.
    explicit BusNotifications(QDBusConnection bus, QObject* parent = nullptr);

    void show(const Notification& notification) override;
    void withdraw(const QString& identifier) override;

private Q_SLOTS:
    void noteAction(uint id, const QString& action);

private:
    void takeReply(QDBusPendingCallWatcher& watcher, const Notification& notification);
    void close(uint id);

    QDBusConnection m_bus;
    QHash<QString, uint> m_ids; ///< the service's number of each identifier's last notification
    QSet<QString> m_awaited;    ///< asked for, and not answered yet
    QSet<QString> m_withdrawn;  ///< of those
};

} // namespace kestrowind
