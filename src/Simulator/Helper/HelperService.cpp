#include "Simulator/Helper/HelperService.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Link/HelperWire.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <optional>
#include <system_error>
#include <tuple>
#include <unistd.h>
#include <utility>
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

QVariant targetList(const std::vector<double>& targets) {
    return QVariant::fromValue(QList<double>(targets.begin(), targets.end()));
}

QDBusMessage garbageFor(const QDBusMessage& message) {
    if (message.member() == "Status"_L1)
        return message.createReply(QByteArray("\x00\xff{\"version\":", 14));
    return message.createReply(u"not what was asked for"_s);
}

} // namespace

HelperService::HelperService(FanController& controller, QDBusServer& server,
                             std::filesystem::path root)
    : m_controller(controller)
    , m_root(std::move(root)) {
    m_ticks.setInterval(FanController::tickInterval);
    connect(&m_ticks, &QTimer::timeout, this, &HelperService::tick);
    connect(&server, &QDBusServer::newConnection, this, &HelperService::accept);
}

void HelperService::accept(const QDBusConnection& connection) {
    if (m_peers.size() >= mostPeers)
        makeRoom();
    QDBusConnection peer = connection;
    peer.registerVirtualObject(QLatin1StringView(HelperWire::objectPath), this);
    // What the library tells itself when a connection has ended, without saying which.
    if (!peer.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                      u"Disconnected"_s, this, SLOT(dropLostPeers())))
        qWarning() << "cannot tell when a caller goes";
    const auto now = Clock::now();
    m_peers.insert_or_assign(connection.name(), Peer{.lastWord = now, .secondBegan = now});
}

void HelperService::makeRoom() {
    // Whoever came and said nothing goes first, then whoever was silent for longest; whoever drives
    // the fans stays.
    const auto isBetter = [this](const auto& one, const auto& other) {
        const auto rank = [this](const auto& peer) {
            return std::tuple(peer.first == m_owner, peer.second.hasCalled, peer.second.lastWord);
        };
        return rank(one) < rank(other);
    };
    const QString name = std::ranges::min_element(m_peers, isBetter)->first;
    hangUp(name);
}

bool HelperService::admitCall(const QString& name) {
    const auto found = m_peers.find(name);
    if (found == m_peers.end())
        return false;
    Peer& peer = found->second;
    const auto now = Clock::now();
    if (now - peer.secondBegan >= std::chrono::seconds(1)) {
        peer.secondBegan = now;
        peer.callsThisSecond = 0;
    }
    peer.hasCalled = true;
    peer.lastWord = now;
    if (++peer.callsThisSecond <= mostCallsPerSecond)
        return true;
    hangUp(name);
    return false;
}

void HelperService::hangUp(const QString& name) {
    // Not while the connection is delivering a call.
    QMetaObject::invokeMethod(
        this, [name] { QDBusConnection::disconnectFromPeer(name); }, Qt::QueuedConnection);
    m_peers.erase(name);
    if (name != m_owner)
        return;
    m_controller.releaseControl();
    m_owner.clear();
    tick();
}

void HelperService::dropLostPeers() {
    QStringList lost;
    for (const auto& [name, peer] : m_peers) {
        if (!QDBusConnection(name).isConnected())
            lost.append(name);
    }
    for (const QString& name : lost)
        hangUp(name);
}

void HelperService::tick() {
    m_controller.tick();
    if (m_controller.isHolding() != m_ticks.isActive())
        m_controller.isHolding() ? m_ticks.start() : m_ticks.stop();
}

bool HelperService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (!admitCall(connection.name()))
        return true;
    if (message.interface() != QLatin1StringView(HelperWire::interfaceName))
        return false;
    const auto signature = argumentSignature(message.member());
    if (!signature) {
        connection.send(message.createErrorReply(QDBusError::UnknownMethod,
                                                 u"there is no method %1"_s.arg(message.member())));
        return true;
    }
    if (message.signature() != *signature) {
        connection.send(message.createErrorReply(
            QDBusError::InvalidArgs, u"%1 takes \"%2\", not \"%3\""_s.arg(
                                         message.member(), *signature, message.signature())));
        return true;
    }
    const auto behaviour = readHelperBehaviour(SimulatedMac::helperBehaviourFile(m_root));
    if (behaviour.kind == HelperBehaviour::Kind::silent)
        return true;
    while (behaviour.kind == HelperBehaviour::Kind::hang)
        ::pause();
    const QDBusMessage answer = act(message, connection, behaviour);
    tick();
    const bool isLast = message.member() == "Uninstall"_L1 || message.member() == "ShutDown"_L1;
    reply(behaviour.kind == HelperBehaviour::Kind::garbage ? garbageFor(message) : answer,
          connection, behaviour, isLast);
    return true;
}

QDBusMessage HelperService::act(const QDBusMessage& message, const QDBusConnection& connection,
                                const HelperBehaviour& behaviour) {
    if (behaviour.kind == HelperBehaviour::Kind::fail)
        m_controller.fail(behaviour.text);
    if (message.member() == "SetTargets"_L1)
        return setTargets(message, connection, behaviour);
    if (message.member() == "Status"_L1)
        return status(message, behaviour);
    if (message.member() == "Uninstall"_L1)
        return uninstall(message);
    m_controller.releaseControl();
    return message.createReply();
}

QDBusMessage HelperService::setTargets(const QDBusMessage& message,
                                       const QDBusConnection& connection,
                                       const HelperBehaviour& behaviour) {
    if (behaviour.kind == HelperBehaviour::Kind::fail)
        return message.createReply(targetList(m_controller.status().effectiveTargets));
    // Who hung up before we began to watch the connection is never reported as lost any more.
    if (!connection.isConnected())
        return message.createErrorReply(QDBusError::Disconnected, u"the caller is gone"_s);
    const auto asked = qdbus_cast<QList<double>>(message.arguments().constFirst());
    const auto applied = m_controller.setTargets(std::vector<double>(asked.begin(), asked.end()));
    if (!applied)
        return message.createErrorReply(QDBusError::InvalidArgs,
                                        QString::fromStdString(applied.error()));
    m_owner = connection.name();
    return message.createReply(targetList(*applied));
}

QDBusMessage HelperService::status(const QDBusMessage& message, const HelperBehaviour& behaviour) {
    HelperStatus status = m_controller.status();
    if (behaviour.kind == HelperBehaviour::Kind::version)
        status.version = behaviour.text;
    return message.createReply(QByteArray::fromStdString(encodeHelperStatus(status)));
}

QDBusMessage HelperService::uninstall(const QDBusMessage& message) {
    m_controller.releaseControl();
    bool isGone = true;
    for (const char* path :
         {HelperConstants::daemonPlistPath, HelperConstants::helperInstallPath}) {
        std::error_code error;
        std::filesystem::remove(SimulatedMac::systemPath(m_root, path), error);
        isGone = isGone && !error;
    }
    return message.createReply(isGone);
}

void HelperService::reply(const QDBusMessage& reply, const QDBusConnection& connection,
                          const HelperBehaviour& behaviour, bool isLast) {
    const auto send = [this, reply, connection, isLast] {
        connection.send(reply);
        if (isLast)
            finishAfterReplies(connection);
    };
    if (behaviour.kind == HelperBehaviour::Kind::late)
        QTimer::singleShot(behaviour.delay, this, send);
    else
        send();
}

void HelperService::finishAfterReplies(const QDBusConnection& connection) {
    // What was sent is only queued. The peer answers a ping after it has read everything before it.
    const auto ping = QDBusMessage::createMethodCall(QString(), u"/"_s,
                                                     u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    auto* watcher =
        new QDBusPendingCallWatcher(connection.asyncCall(ping, farewellMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &HelperService::finished);
}

} // namespace kestrowind
