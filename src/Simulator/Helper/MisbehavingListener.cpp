#include "Simulator/Helper/MisbehavingListener.h"

#include "Helper/FanController.h"
#include "Simulator/Helper/HelperBehaviour.h"
#include "Simulator/Link/SimulatedMac.h"

#include <unistd.h>
#include <utility>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

using Kind = HelperBehaviour::Kind;

QDBusMessage garbageFor(const QDBusMessage& call) {
    if (call.member() == "Status"_L1)
        return call.createReply(QByteArray("\x00\xff{\"version\":", 14));
    return call.createReply(u"not what was asked for"_s);
}

/// The reply to a call for the status, as a helper of another version would give it.
QDBusMessage withVersion(const std::string& version, const QDBusMessage& reply,
                         const QDBusMessage& call) {
    auto status = decodeHelperStatus(reply.arguments().constFirst().toByteArray().toStdString());
    if (!status)
        return reply;
    status->version = version;
    return call.createReply(QByteArray::fromStdString(encodeHelperStatus(*status)));
}

} // namespace

MisbehavingListener::MisbehavingListener(QDBusServer& server, FanController& controller,
                                         std::filesystem::path root)
    : BusListener(server)
    , m_controller(controller)
    , m_root(std::move(root)) {}

void MisbehavingListener::answer(const QDBusMessage& call, const QDBusConnection& connection) {
    const auto behaviour = readHelperBehaviour(SimulatedMac::helperBehaviourFile(m_root));
    const bool isStatus = call.member() == "Status"_L1;
    switch (behaviour.kind) {
    case Kind::normal:
        BusListener::answer(call, connection);
        return;
    case Kind::silent:
        return;
    case Kind::hang:
        for (;;)
            ::pause();
    case Kind::late:
        QTimer::singleShot(behaviour.delay, this,
                           [this, reply = act(call, connection), call, connection] {
                               send(reply, call, connection);
                           });
        return;
    case Kind::garbage:
        (void)act(call, connection);
        send(garbageFor(call), call, connection);
        return;
    case Kind::fail: {
        m_controller.fail(behaviour.text);
        const auto targets = m_controller.status().effectiveTargets;
        const QList<double> applied(targets.begin(), targets.end());
        send(call.member() == "SetTargets"_L1 ? call.createReply(QVariant::fromValue(applied))
                                              : act(call, connection),
             call, connection);
        return;
    }
    case Kind::version: {
        const QDBusMessage reply = act(call, connection);
        send(isStatus ? withVersion(behaviour.text, reply, call) : reply, call, connection);
        return;
    }
    }
}

} // namespace kestrowind
