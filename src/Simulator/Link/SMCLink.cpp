#include "Simulator/Link/SMCLink.h"

#include "Simulator/Link/SMCWire.h"

#include <cerrno>
#include <cstring>
#include <expected>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace kestrowind {
namespace {

/// One request and its reply; the error is the kernel code that stands for the broken line.
std::expected<SMCWire::Reply, std::int32_t> exchange(int socket, const SMCWire::Request& request) {
    if (socket < 0)
        return std::unexpected(IOReturn::noDevice);
    if (::send(socket, &request, sizeof request, MSG_NOSIGNAL) != ssize_t{sizeof request})
        return std::unexpected(IOReturn::noDevice);
    SMCWire::Reply reply;
    ssize_t received = 0;
    do {
        received = ::recv(socket, &reply, sizeof reply, 0);
    } while (received < 0 && errno == EINTR);
    if (received < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return std::unexpected(IOReturn::timeout);
    if (received != ssize_t{sizeof reply})
        return std::unexpected(IOReturn::noDevice);
    return reply;
}

SMCWire::Request request(SMCWire::Operation operation, std::uint32_t handle,
                         std::uint32_t argument) {
    SMCWire::Request request;
    request.operation = std::to_underlying(operation);
    request.handle = handle;
    request.argument = argument;
    return request;
}

} // namespace

SMCLink::SMCLink(std::filesystem::path socket, std::chrono::milliseconds answerTimeout)
    : m_path(std::move(socket))
    , m_answerTimeout(answerTimeout) {}

SMCLink::~SMCLink() {
    hangUp();
}

void SMCLink::hangUp() {
    if (m_socket >= 0)
        ::close(m_socket);
    m_socket = -1;
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
        hangUp();
        return false;
    }
    return true;
}

std::uint32_t SMCLink::matchingService(std::string_view className) {
    SMCWire::Request lookup = request(SMCWire::Operation::matchingService, 0, 0);
    if (className.size() >= sizeof lookup.className || !connectToKernel())
        return 0;
    className.copy(lookup.className, className.size());
    const auto reply = exchange(m_socket, lookup);
    return reply ? reply->handle : 0;
}

void SMCLink::releaseService(std::uint32_t /*service*/) {
    // The simulated kernel counts no references.
}

SMCUserClient::Opened SMCLink::open(std::uint32_t service, std::uint32_t connectionType) {
    const auto reply =
        exchange(m_socket, request(SMCWire::Operation::open, service, connectionType));
    if (!reply)
        return {.code = reply.error()};
    return {.code = reply->code, .connection = reply->handle};
}

void SMCLink::close(std::uint32_t connection) {
    (void)exchange(m_socket, request(SMCWire::Operation::close, connection, 0));
}

std::int32_t SMCLink::callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                       const SMCParamStruct& input, SMCParamStruct& output) {
    SMCWire::Request call = request(SMCWire::Operation::call, connection, selector);
    call.record = input;
    const auto reply = exchange(m_socket, call);
    if (!reply) {
        // After a time-out the late reply would answer the next question: this line is done with.
        if (reply.error() == IOReturn::timeout)
            hangUp();
        return reply.error();
    }
    output = reply->record;
    return reply->code;
}

} // namespace kestrowind
