#include "Simulator/Helper/HelperService.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Helper/ConnectionWatch.h"
#include "Simulator/Link/HelperWire.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>

#include <system_error>
#include <utility>
#include <vector>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

// How long the helper waits for a caller to confirm the last reply before it ends all the same.
constexpr int farewellMilliseconds = 500;

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

HelperService::~HelperService() = default;

void HelperService::accept(const QDBusConnection& connection) {
    QDBusConnection peer = connection;
    peer.registerVirtualObject(QLatin1StringView(HelperWire::objectPath), this);
    const auto* watch = new ConnectionWatch(peer, this);
    connect(watch, &ConnectionWatch::lost, this, &HelperService::loseConnection);
}

void HelperService::loseConnection(const QString& name) {
    if (name != m_owner)
        return;
    m_controller.releaseControl();
    m_owner.clear();
    tick();
}

void HelperService::tick() {
    m_controller.tick();
    if (m_controller.isHolding() != m_ticks.isActive())
        m_controller.isHolding() ? m_ticks.start() : m_ticks.stop();
}

QString HelperService::introspect(const QString& /*path*/) const {
    return u"<interface name=\"%1\">"
           "<method name=\"SetTargets\"><arg type=\"ad\" direction=\"in\"/>"
           "<arg type=\"ad\" direction=\"out\"/></method>"
           "<method name=\"ReleaseControl\"/>"
           "<method name=\"Status\"><arg type=\"ay\" direction=\"out\"/></method>"
           "<method name=\"Uninstall\"><arg type=\"b\" direction=\"out\"/></method>"
           "<method name=\"ShutDown\"/>"
           "</interface>"_s.arg(QLatin1StringView(HelperWire::interfaceName));
}

bool HelperService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() != QLatin1StringView(HelperWire::interfaceName))
        return false;
    const QString expected = message.member() == "SetTargets"_L1 ? u"ad"_s : QString();
    static const std::set<QString> members{u"SetTargets"_s, u"ReleaseControl"_s, u"Status"_s,
                                           u"Uninstall"_s, u"ShutDown"_s};
    if (!members.contains(message.member()))
        return false;
    if (message.signature() != expected) {
        connection.send(message.createErrorReply(
            QDBusError::InvalidArgs,
            u"%1 takes \"%2\", not \"%3\""_s.arg(message.member(), expected, message.signature())));
        return true;
    }
    const auto behaviour = readHelperBehaviour(SimulatedMac::helperBehaviourFile(m_root));
    if (behaviour.kind != HelperBehaviour::Kind::silent)
        act(message, connection, behaviour);
    return true;
}

void HelperService::act(const QDBusMessage& message, const QDBusConnection& connection,
                        const HelperBehaviour& behaviour) {
    using Kind = HelperBehaviour::Kind;
    m_controller.hearFromApplication();
    if (behaviour.kind == Kind::fail)
        m_controller.fail(behaviour.text);
    QDBusMessage answer = message.createReply();
    if (message.member() == "SetTargets"_L1 && behaviour.kind != Kind::fail)
        answer = setTargets(message, connection);
    else if (message.member() == "SetTargets"_L1)
        answer << QVariant::fromValue(
            QList<double>(std::ssize(m_controller.status().effectiveTargets), 0.0));
    else if (message.member() == "Status"_L1)
        answer = status(message, behaviour);
    else if (message.member() == "Uninstall"_L1)
        answer = uninstall(message);
    else if (behaviour.kind != Kind::fail)
        m_controller.releaseControl();
    tick();
    const bool isLast = message.member() == "Uninstall"_L1 || message.member() == "ShutDown"_L1;
    reply(behaviour.kind == Kind::garbage ? garbageFor(message) : answer, connection, behaviour,
          isLast);
}

QDBusMessage HelperService::setTargets(const QDBusMessage& message,
                                       const QDBusConnection& connection) {
    const auto asked = qdbus_cast<QList<double>>(message.arguments().constFirst());
    const auto applied = m_controller.setTargets(std::vector<double>(asked.begin(), asked.end()));
    if (!applied)
        return message.createErrorReply(QDBusError::InvalidArgs,
                                        QString::fromStdString(applied.error()));
    m_owner = connection.name();
    return message.createReply(
        QVariant::fromValue(QList<double>(applied->begin(), applied->end())));
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
