#pragma once

#include <QByteArray>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kestrowind {

/// A socket that takes connections and never says a word.
class SilentSocket {
public:
    SilentSocket() {
        // Bound to no name it gets an abstract one of five characters from the kernel.
        sockaddr_un name{.sun_family = AF_UNIX, .sun_path = {}};
        socklen_t length = sizeof name;
        ::bind(m_socket, reinterpret_cast<sockaddr*>(&name), sizeof name.sun_family);
        ::listen(m_socket, 8);
        ::getsockname(m_socket, reinterpret_cast<sockaddr*>(&name), &length);
        m_busAddress = "unix:guid=0,abstract=" + QByteArray(name.sun_path + 1, 5);
    }
    ~SilentSocket() { ::close(m_socket); }
    SilentSocket(const SilentSocket&) = delete;
    SilentSocket& operator=(const SilentSocket&) = delete;

    /// In the form of DBUS_SESSION_BUS_ADDRESS.
    [[nodiscard]] const QByteArray& busAddress() const { return m_busAddress; }

private:
    int m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QByteArray m_busAddress;
};

} // namespace kestrowind
