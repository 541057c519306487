#include "Platform/Linux/BusNotifications.h"

#include "Platform/Linux/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>

#include <chrono>

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

/// A service that has not answered by then shows nothing, and the tray does.
constexpr std::chrono::seconds servicePatience{5};

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
    m_awaited.insert(notification.identifier);
    m_withdrawn.remove(notification.identifier);
    const int limit = static_cast<int>(std::chrono::milliseconds(servicePatience).count());
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, limit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [=, this] {
        takeReply(*watcher, notification);
        watcher->deleteLater();
    });
}

void BusNotifications::withdraw(const QString& identifier) {
    if (m_ids.contains(identifier))
        close(m_ids.take(identifier));
    // Its number is not known before the answer.
    if (m_awaited.contains(identifier))
        m_withdrawn.insert(identifier);
}

void BusNotifications::close(uint id) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(busService, busPath, busInterface, u"CloseNotification"_s);
    m_bus.asyncCall(call << id);
}

void BusNotifications::takeReply(QDBusPendingCallWatcher& watcher,
                                 const Notification& notification) {
    const QDBusPendingReply<uint> reply(watcher);
    m_awaited.remove(notification.identifier);
    const bool isWithdrawn = m_withdrawn.remove(notification.identifier);
    if (reply.isError()) {
        qCDebug(notificationsLog).noquote() << "not shown:" << reply.error().message();
        if (!isWithdrawn)
            Q_EMIT notShown(notification);
        return;
    }
    if (isWithdrawn)
        close(reply.value());
    else
        m_ids.insert(notification.identifier, reply.value());
}

void BusNotifications::noteAction(uint id, const QString& action) {
    // The service tells everybody of everybody's notifications.
    if (action == clickAction && std::ranges::find(m_ids, id) != m_ids.end())
        Q_EMIT activated();
}

} // namespace kestrowind
