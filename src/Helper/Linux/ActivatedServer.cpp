#include "Helper/Linux/ActivatedServer.h"

#include <QDBusConnection>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

// Where the D-Bus library looks for the socket.
constexpr int firstListeningSocket = 3;

/// Puts a listening socket with a name of the kernel's choice at the descriptor.
bool placeUnknownSocket(int descriptor) {
    const int unknown = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const bool isPlaced =
        unknown >= 0 &&
        ::bind(unknown, reinterpret_cast<const sockaddr*>(&address), sizeof(sa_family_t)) == 0 &&
        ::listen(unknown, 1) == 0 && ::dup2(unknown, descriptor) == descriptor;
    if (unknown >= 0)
        ::close(unknown);
    return isPlaced;
}

} // namespace

ActivatedServer::ActivatedServer()
    : m_handedOver(::fcntl(firstListeningSocket, F_DUPFD_CLOEXEC, firstListeningSocket + 1)) {
    if (m_handedOver >= 0 && !placeUnknownSocket(firstListeningSocket)) {
        ::close(m_handedOver);
        m_handedOver = -1;
    }
    // The library takes a socket only for a process of this number, and ours was given to us.
    qputenv("LISTEN_PID", QByteArray::number(::getpid()));
    m_server = std::make_unique<QDBusServer>(u"systemd:"_s);
}

ActivatedServer::~ActivatedServer() {
    if (m_handedOver >= 0)
        ::close(m_handedOver);
}

bool ActivatedServer::open() {
    if (m_handedOver < 0 || !m_server->isConnected() ||
        ::dup2(m_handedOver, firstListeningSocket) != firstListeningSocket)
        return false;
    // The D-Bus thread still sleeps on the other socket. It has to wake up for any request, even
    // for one that comes to nothing, and looks at its descriptors anew afterwards.
    (void)QDBusConnection::connectToPeer(u"unix:path=/dev/null"_s, u"wake"_s);
    QDBusConnection::disconnectFromPeer(u"wake"_s);
    return true;
}

} // namespace kestrowind
