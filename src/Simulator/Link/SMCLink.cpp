#include "Simulator/Link/SMCLink.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace kestrowind {
using SMCWire::Operation;

SMCLink::Answer SMCLink::exchange(SMCWire::Request request) {
    if (m_socket < 0)
        return std::unexpected(IOReturn::noDevice);
    request.sequence = ++m_sequence;
    if (::send(m_socket, &request, sizeof request, MSG_NOSIGNAL) != ssize_t{sizeof request})
        return std::unexpected(IOReturn::noDevice);
    SMCWire::Reply reply;
    // What comes late answers a question that timed out before.
    do {
        ssize_t received = 0;
        do {
            received = ::recv(m_socket, &reply, sizeof reply, 0);
        } while (received < 0 && errno == EINTR);
        if (received < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            return std::unexpected(IOReturn::timeout);
        if (received != ssize_t{sizeof reply})
            return std::unexpected(IOReturn::noDevice);
    } while (reply.sequence != request.sequence);
    return reply;
}

SMCLink::SMCLink(std::filesystem::path socket, std::chrono::milliseconds answerTimeout)
    : m_path(std::move(socket))
    , m_answerTimeout(answerTimeout) {}

SMCLink::~SMCLink() {
    if (m_socket >= 0)
        ::close(m_socket);
}

bool SMCLink::connectToKernel() {
    if (m_socket >= 0)
        return true;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = m_path.string();
    if (path.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    m_socket = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    if (m_socket < 0)
        return false;
    const auto milliseconds = m_answerTimeout.count();
    const timeval limit{.tv_sec = milliseconds / 1000, .tv_usec = milliseconds % 1000 * 1000};
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    ::setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        ::close(std::exchange(m_socket, -1));
        return false;
    }
    return true;
}

std::uint32_t SMCLink::matchingService(std::string_view className) {
    SMCWire::Request request{.operation = std::to_underlying(Operation::matchingService)};
    if (className.size() >= sizeof request.className || !connectToKernel())
        return 0;
    className.copy(request.className, className.size());
    const Answer reply = exchange(request);
    return reply ? reply->handle : 0;
}

void SMCLink::releaseService(std::uint32_t /*service*/) {
    // The simulated kernel counts no references.
}

SMCUserClient::Opened SMCLink::open(std::uint32_t service, std::uint32_t connectionType) {
    const Answer reply = exchange({.operation = std::to_underlying(Operation::open),
                                   .handle = service,
                                   .argument = connectionType});
    if (!reply)
        return {.code = reply.error()};
    return {.code = reply->code, .connection = reply->handle};
}

void SMCLink::close(std::uint32_t connection) {
    (void)exchange({.operation = std::to_underlying(Operation::close), .handle = connection});
}

std::int32_t SMCLink::callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                       const SMCParamStruct& input, SMCParamStruct& output) {
    const Answer reply = exchange({.operation = std::to_underlying(Operation::call),
                                   .handle = connection,
                                   .argument = selector,
                                   .record = input});
    if (!reply)
        return reply.error();
    output = reply->record;
    return reply->code;
}

} // namespace kestrowind
