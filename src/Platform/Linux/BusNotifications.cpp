#include "Platform/Linux/BusNotifications.h"

#include "Platform/Linux/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(notificationsLog, "app.kestrowind.notifications", QtInfoMsg)

const QString busService = u"org.freedesktop.Notifications"_s;
const QString busPath = u"/org/freedesktop/Notifications"_s;
const QString busInterface = u"org.freedesktop.Notifications"_s;

/// The action that the service calls for a click on the notification itself.
const QString clickAction = u"default"_s;

constexpr uchar criticalUrgency = 2; ///< stays until the user has seen it
constexpr int serviceDecides = -1;   ///< how long it is shown

} // namespace

BusNotifications::BusNotifications(QDBusConnection bus, QObject* parent)
    : Notifications(parent)
    , m_bus(std::move(bus)) {
    if (m_bus.isConnected())
        SessionBus::follow(m_bus, {busService, busPath, busInterface, u"ActionInvoked"_s}, this,
                           SLOT(noteAction(uint, QString)));
}

void BusNotifications::show(const Notification& notification) {
    if (!m_bus.isConnected()) {
        qCDebug(notificationsLog) << "not shown: there is no session bus";
        Q_EMIT notShown(notification);
        return;
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(busService, busPath, busInterface, u"Notify"_s);
    call << u"Kestrowind"_s << m_ids.value(notification.identifier) << u"app.kestrowind"_s
         << notification.title
         // The service reads simple markup in it.
         << notification.body.toHtmlEscaped() << QStringList{clickAction, QString()}
         << QVariantMap{{u"desktop-entry"_s, u"app.kestrowind"_s},
                        {u"urgency"_s, QVariant::fromValue(criticalUrgency)}}
         << serviceDecides;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [=, this] {
        takeReply(*watcher, notification);
        watcher->deleteLater();
    });
}

void BusNotifications::withdraw(const QString& identifier) {
    // One that is still on its way has no number yet, and is left to its reader.
    const auto shown = m_ids.constFind(identifier);
    if (shown == m_ids.constEnd())
        return;
    QDBusMessage call =
        QDBusMessage::createMethodCall(busService, busPath, busInterface, u"CloseNotification"_s);
    call << *shown;
    m_ids.erase(shown);
    m_bus.asyncCall(call);
}

void BusNotifications::takeReply(QDBusPendingCallWatcher& watcher,
                                 const Notification& notification) {
    const QDBusPendingReply<uint> reply(watcher);
    if (reply.isError()) {
        qCDebug(notificationsLog).noquote() << "not shown:" << reply.error().message();
        Q_EMIT notShown(notification);
        return;
    }
    m_ids.insert(notification.identifier, reply.value());
}

void BusNotifications::noteAction(uint id, const QString& action) {
    // The service tells everybody of everybody's notifications.
    if (action == clickAction && std::ranges::find(m_ids, id) != m_ids.end())
        Q_EMIT activated();
}

} // namespace kestrowind
