#include "Helper/Linux/BusListener.h"

#include "Helper/HelperService.h"
#include "Shared/HelperShared/Linux/HelperWire.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

// How long the helper waits for a caller to confirm the last reply before it ends all the same.
constexpr int farewellMilliseconds = 500;

/// The signature of what a method takes; absent for what is no method.
std::optional<QString> argumentSignature(const QString& method) {
    static const std::map<QString, QString> methods{{u"SetTargets"_s, u"ad"_s},
                                                    {u"ReleaseControl"_s, {}},
                                                    {u"Status"_s, {}},
                                                    {u"Uninstall"_s, {}},
                                                    {u"ShutDown"_s, {}}};
    const auto found = methods.find(method);
    return found == methods.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

BusListener::BusListener(QDBusServer& server) {
    m_ticks.setInterval(FanController::tickInterval);
    connect(&m_ticks, &QTimer::timeout, this, [this] { m_service->tick(); });
    connect(&server, &QDBusServer::newConnection, this, &BusListener::accept);
}

void BusListener::accept(const QDBusConnection& connection) {
    QDBusConnection peer = connection;
    peer.registerVirtualObject(QLatin1StringView(HelperWire::objectPath), this);
    // What the library tells itself when a connection has ended, without saying which.
    if (!peer.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                      u"Disconnected"_s, this, SLOT(dropLostPeers())))
        qWarning() << "cannot tell when a caller goes";
    m_callers.insert_or_assign(connection.name(), ++m_lastCaller);
    m_service->callerCame(m_lastCaller);
}

void BusListener::hangUp(CallerID caller) {
    const auto found =
        std::ranges::find(m_callers, caller, [](const auto& one) { return one.second; });
    if (found == m_callers.end())
        return;
    // Not while the connection is delivering a call.
    QMetaObject::invokeMethod(
        this, [name = found->first] { QDBusConnection::disconnectFromPeer(name); },
        Qt::QueuedConnection);
    m_callers.erase(found);
}

void BusListener::dropLostPeers() {
    std::vector<CallerID> lost;
    for (const auto& [name, caller] : m_callers) {
        if (!QDBusConnection(name).isConnected())
            lost.push_back(caller);
    }
    for (const CallerID caller : lost) {
        hangUp(caller);
        m_service->callerGone(caller);
    }
}

void BusListener::setTicking(bool isTicking) {
    if (isTicking != m_ticks.isActive())
        isTicking ? m_ticks.start() : m_ticks.stop();
}

bool BusListener::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const auto caller = m_callers.find(connection.name());
    if (caller == m_callers.end() || !m_service->admitCall(caller->second))
        return true;
    if (message.interface() != QLatin1StringView(HelperWire::interfaceName))
        return false;
    const auto signature = argumentSignature(message.member());
    if (!signature)
        connection.send(message.createErrorReply(QDBusError::UnknownMethod,
                                                 u"there is no method %1"_s.arg(message.member())));
    else if (message.signature() != *signature)
        connection.send(message.createErrorReply(
            QDBusError::InvalidArgs, u"%1 takes \"%2\", not \"%3\""_s.arg(
                                         message.member(), *signature, message.signature())));
    else
        answer(message, connection);
    return true;
}

void BusListener::answer(const QDBusMessage& call, const QDBusConnection& connection) {
    send(act(call, connection), call, connection);
}

QDBusMessage BusListener::act(const QDBusMessage& call, const QDBusConnection& connection) {
    if (call.member() == "SetTargets"_L1)
        return setTargets(call, connection);
    if (call.member() == "Status"_L1) {
        const std::string document = encodeHelperStatus(m_service->status());
        return call.createReply(QByteArray::fromStdString(document));
    }
    if (call.member() == "Uninstall"_L1)
        return call.createReply(m_service->uninstall());
    m_service->releaseControl();
    return call.createReply();
}

QDBusMessage BusListener::setTargets(const QDBusMessage& call, const QDBusConnection& connection) {
    // Who hung up before we began to watch the connection is never reported as lost any more.
    if (!connection.isConnected())
        return call.createErrorReply(QDBusError::Disconnected, u"the caller is gone"_s);
    const auto asked = qdbus_cast<QList<double>>(call.arguments().constFirst());
    const auto applied = m_service->setTargets(m_callers.at(connection.name()),
                                               std::vector(asked.begin(), asked.end()));
    if (!applied)
        return call.createErrorReply(QDBusError::InvalidArgs,
                                     QString::fromStdString(applied.error()));
    return call.createReply(QVariant::fromValue(QList<double>(applied->begin(), applied->end())));
}

void BusListener::send(const QDBusMessage& reply, const QDBusMessage& call,
                       const QDBusConnection& connection) {
    connection.send(reply);
    if (call.member() == "Uninstall"_L1 || call.member() == "ShutDown"_L1)
        finishAfterReplies(connection);
}

void BusListener::finishAfterReplies(const QDBusConnection& connection) {
    // What was sent is only queued. The peer answers a ping after it has read everything before it.
    const auto ping = QDBusMessage::createMethodCall(QString(), u"/"_s,
                                                     u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    auto* watcher =
        new QDBusPendingCallWatcher(connection.asyncCall(ping, farewellMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &BusListener::finished);
}

} // namespace kestrowind
