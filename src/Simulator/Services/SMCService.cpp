#include "Simulator/Services/SMCService.h"

#include "Simulator/Link/SMCWire.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace kestrowind {
namespace {

using SMCWire::Operation;
using SMCWire::Reply;
using SMCWire::Request;

// Requests answered before other clients and the clock get their turn.
constexpr int requestsPerTurn = 64;

Reply answer(SimulatedSMC& smc, std::set<std::uint32_t>& connections, const Request& request) {
    Reply reply;
    reply.sequence = request.sequence;
    switch (Operation{request.operation}) {
    case Operation::matchingService:
        reply.handle = smc.matchingService(
            {request.className, ::strnlen(request.className, sizeof request.className)});
        return reply;
    case Operation::open: {
        const auto opened = smc.open(request.handle, request.argument);
        if (opened.code == IOReturn::success)
            connections.insert(opened.connection);
        reply.code = opened.code;
        reply.handle = opened.connection;
        return reply;
    }
    case Operation::call:
        reply.code = connections.contains(request.handle)
                         ? smc.callStructMethod(request.handle, request.argument, request.record,
                                                reply.record)
                         : IOReturn::notOpen;
        return reply;
    case Operation::close:
        if (connections.erase(request.handle) > 0)
            smc.close(request.handle);
        else
            reply.code = IOReturn::notOpen;
        return reply;
    }
    reply.code = IOReturn::badArgument;
    return reply;
}

} // namespace

SMCService::SMCService(SimulatedSMC& smc, ListeningSocket socket)
    : m_smc(smc)
    , m_socket(std::move(socket))
    , m_notifier(m_socket.descriptor(), QSocketNotifier::Read) {
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier,
                     [this] { acceptClients(); });
}

SMCService::~SMCService() {
    while (!m_clients.empty())
        hangUp(m_clients.begin()->first);
}

void SMCService::acceptClients() {
    for (;;) {
        const int descriptor =
            ::accept4(m_socket.descriptor(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (descriptor < 0)
            return;
        auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                         [this, descriptor] { serve(descriptor); });
        m_clients.emplace(descriptor, Client{descriptor, {}, std::move(notifier)});
    }
}

void SMCService::serve(int descriptor) {
    const auto found = m_clients.find(descriptor);
    bool isDrained = false;
    for (int turn = 0; turn < requestsPerTurn && !isDrained; ++turn) {
        if (!answerOne(found->second, isDrained)) {
            hangUp(descriptor);
            return;
        }
    }
}

bool SMCService::answerOne(Client& client, bool& isDrained) {
    Request request;
    // MSG_TRUNC tells the true size of a message that is too long.
    const ssize_t received = ::recv(client.descriptor, &request, sizeof request, MSG_TRUNC);
    if (received < 0 && (errno == EAGAIN || errno == EINTR)) {
        isDrained = true;
        return true;
    }
    if (received != ssize_t{sizeof request})
        return false;
    const Reply reply = answer(m_smc, client.connections, request);
    return ::send(client.descriptor, &reply, sizeof reply, MSG_NOSIGNAL) == ssize_t{sizeof reply};
}

void SMCService::hangUp(int descriptor) {
    auto client = m_clients.extract(descriptor);
    for (const std::uint32_t connection : client.mapped().connections)
        m_smc.close(connection);
    // This may run in the notifier's own signal.
    client.mapped().notifier->setEnabled(false);
    client.mapped().notifier.release()->deleteLater();
    ::close(descriptor);
}

} // namespace kestrowind
