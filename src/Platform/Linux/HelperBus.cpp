#include "Platform/Linux/HelperBus.h"

#include "Shared/HelperShared/Linux/HelperWire.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>

#include <chrono>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The real link never gives up on a call; this only keeps a silent helper from piling up calls.
constexpr std::chrono::milliseconds callLifetime = 30s;

bool isMereSilence(const QDBusError& error) {
    return error.type() == QDBusError::NoReply || error.type() == QDBusError::TimedOut ||
           error.type() == QDBusError::Timeout;
}

} // namespace

HelperBus::HelperBus(QString machServiceName)
    : m_machServiceName(std::move(machServiceName)) {
    qDBusRegisterMetaType<QList<double>>();
}

HelperBus::~HelperBus() {
    disconnectFromService();
}

void HelperBus::setInvalidationHandler(std::function<void()> handler) {
    m_invalidationHandler = std::move(handler);
}

bool HelperBus::isInterrupted() const {
    return !m_peerName.isEmpty() && !QDBusConnection(m_peerName).isConnected();
}

bool HelperBus::connectToService() {
    if (!m_peerName.isEmpty())
        return true;
    const auto root = SimulatedMac::root().value_or(SimulatedMac::nowhere);
    static int connections = 0;
    const QString name = u"kestrowind-helper-%1"_s.arg(++connections);
    const auto address =
        HelperWire::busAddress(SimulatedMac::serviceSocket(root, m_machServiceName.toStdString()));
    const auto peer = QDBusConnection::connectToPeer(QString::fromStdString(address), name);
    m_peerName = name;
    if (peer.isConnected())
        return true;
    disconnectFromService();
    return false;
}

void HelperBus::disconnectFromService() {
    if (!m_peerName.isEmpty())
        QDBusConnection::disconnectFromPeer(m_peerName);
    m_peerName.clear();
}

void HelperBus::fail(const ErrorHandler& error, const QString& description) {
    // Later, as a real connection would: the caller is not waiting yet.
    QMetaObject::invokeMethod(
        this, [error, description] { error(description); }, Qt::QueuedConnection);
}

void HelperBus::invalidate() {
    if (const auto handler = std::exchange(m_invalidationHandler, nullptr))
        handler();
}

void HelperBus::call(const QString& method, const QVariantList& arguments,
                     const QString& replySignature, Deliver deliver, ErrorHandler error) {
    if (isInterrupted())
        disconnectFromService();
    if (!connectToService()) {
        fail(error, u"no connection to the service named %1"_s.arg(m_machServiceName));
        QMetaObject::invokeMethod(this, &HelperBus::invalidate, Qt::QueuedConnection);
        return;
    }
    auto message =
        QDBusMessage::createMethodCall(QString(), QString::fromLatin1(HelperWire::objectPath),
                                       QString::fromLatin1(HelperWire::interfaceName), method);
    message.setArguments(arguments);
    const QDBusConnection peer(m_peerName);
    auto* watcher = new QDBusPendingCallWatcher(
        peer.asyncCall(message, static_cast<int>(callLifetime.count())), this);
    connect(
        watcher, &QDBusPendingCallWatcher::finished, this,
        [watcher, peerName = m_peerName, replySignature, deliver, error] {
            watcher->deleteLater();
            const QDBusMessage reply = watcher->reply();
            if (!watcher->isError() && reply.signature() == replySignature)
                deliver(reply);
            else if (!watcher->isError())
                error(u"the reply's signature is \"%1\" instead of \"%2\""_s.arg(reply.signature(),
                                                                                 replySignature));
            else if (!isMereSilence(watcher->error()) || !QDBusConnection(peerName).isConnected())
                error(watcher->error().message());
        });
}

void HelperBus::setTargets(const std::vector<double>& targets, Reply<std::vector<double>> reply,
                           ErrorHandler error) {
    const QList<double> list(targets.begin(), targets.end());
    call(
        u"SetTargets"_s, {QVariant::fromValue(list)}, u"ad"_s,
        [reply = std::move(reply)](const QDBusMessage& message) {
            const auto speeds = qdbus_cast<QList<double>>(message.arguments().constFirst());
            reply({speeds.begin(), speeds.end()});
        },
        std::move(error));
}

void HelperBus::releaseControl(Reply<> reply, ErrorHandler error) {
    call(
        u"ReleaseControl"_s, {}, QString(),
        [reply = std::move(reply)](const QDBusMessage&) { reply(); }, std::move(error));
}

void HelperBus::status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) {
    call(
        u"Status"_s, {}, u"ay"_s,
        [reply = std::move(reply)](const QDBusMessage& message) {
            reply(message.arguments().constFirst().toByteArray());
        },
        std::move(error));
}

void HelperBus::uninstall(Reply<bool> reply, ErrorHandler error) {
    call(
        u"Uninstall"_s, {}, u"b"_s,
        [reply = std::move(reply)](const QDBusMessage& message) {
            reply(message.arguments().constFirst().toBool());
        },
        std::move(error));
}

void HelperBus::shutDown(Reply<> reply, ErrorHandler error) {
    call(
        u"ShutDown"_s, {}, QString(), [reply = std::move(reply)](const QDBusMessage&) { reply(); },
        std::move(error));
}

} // namespace kestrowind
