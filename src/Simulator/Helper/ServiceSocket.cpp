#include "Simulator/Helper/ServiceSocket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kestrowind {
namespace {

/// Where launchd places the first socket it hands over.
constexpr int firstPassedDescriptor = 3;

/// A listening socket under a name of the kernel's choice that nobody else knows.
int makeEmptySocket() {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(sa_family_t)) != 0 ||
        ::listen(descriptor, 1) != 0)
        return -1;
    return descriptor;
}

/// Whoever polls a socket goes on polling that one, even when its number means another by now.
void wakePoller(int listeningSocket) {
    sockaddr_un address{};
    socklen_t length = sizeof address;
    ::getsockname(listeningSocket, reinterpret_cast<sockaddr*>(&address), &length);
    const int caller = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    [[maybe_unused]] const int result =
        ::connect(caller, reinterpret_cast<const sockaddr*>(&address), length);
    ::close(caller);
}

} // namespace

ServiceSocket::ServiceSocket()
    : m_launchdSocket(::fcntl(firstPassedDescriptor, F_DUPFD_CLOEXEC, firstPassedDescriptor + 1))
    , m_emptySocket(makeEmptySocket()) {
    if (isValid())
        ::dup2(m_emptySocket, firstPassedDescriptor);
}

ServiceSocket::~ServiceSocket() {
    ::close(m_launchdSocket);
    ::close(m_emptySocket);
}

void ServiceSocket::open() {
    ::fcntl(m_launchdSocket, F_SETFL, O_NONBLOCK);
    ::dup2(m_launchdSocket, firstPassedDescriptor);
    wakePoller(m_emptySocket);
}

} // namespace kestrowind
