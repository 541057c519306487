#include "Platform/Linux/SessionBus.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(sessionBusLog, "app.kestrowind.session-bus", QtInfoMsg)

constexpr char addressVariable[] = "DBUS_SESSION_BUS_ADDRESS";

/// Where a bus is that a session has without saying so.
QByteArray runtimeSocket() {
    return qgetenv("XDG_RUNTIME_DIR") + "/bus";
}

/// A local socket's name as the kernel takes it, an abstract one begins with a NUL; empty for an
/// address of another kind.
QByteArray socketName(const QByteArray& address) {
    const qsizetype colon = address.indexOf(':');
    if (address.first(std::max<qsizetype>(colon, 0)) != "unix")
        return {};
    for (const QByteArray& pair : address.sliced(colon + 1).split(',')) {
        const qsizetype equals = pair.indexOf('=');
        const QByteArray key = pair.first(std::max<qsizetype>(equals, 0));
        const QByteArray value = QByteArray::fromPercentEncoding(pair.sliced(equals + 1));
        if (key == "path")
            return value;
        if (key == "abstract")
            return '\0' + value;
        if (key == "runtime")
            return runtimeSocket();
    }
    return {};
}

/// Absent when nobody takes the connection.
std::optional<bool> isSilentSocket(const QByteArray& name, std::chrono::milliseconds patience) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof address.sun_path)
        return std::nullopt;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const auto length = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size());
    const int bus = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    std::optional<bool> isSilent;
    if (::connect(bus, reinterpret_cast<const sockaddr*>(&address),
                  static_cast<socklen_t>(length)) == 0) {
        // Every bus answers this with the ways to authenticate that it knows.
        constexpr char question[] = "\0AUTH\r\n";
        pollfd answer{.fd = bus, .events = POLLIN, .revents = 0};
        isSilent = ::send(bus, question, sizeof question - 1, MSG_NOSIGNAL) > 0 &&
                   ::poll(&answer, 1, static_cast<int>(patience.count())) == 0;
    } else if (errno == EAGAIN) {
        isSilent = true; // as many wait to be let in as there may
    }
    ::close(bus);
    return isSilent;
}

} // namespace

bool SessionBus::isSilent(const QByteArray& addresses, std::chrono::milliseconds patience) {
    for (const QByteArray& address : addresses.split(';')) {
        if (const auto isSilent = isSilentSocket(socketName(address), patience))
            return *isSilent;
    }
    return false;
}

void SessionBus::leaveASilentOne() {
    // Long enough for a desktop that is still starting, short enough for who waits for a window.
    constexpr auto patience = 2s;
    const QByteArray addresses = qEnvironmentVariableIsEmpty(addressVariable)
                                     ? "unix:path=" + runtimeSocket().toPercentEncoding("/")
                                     : qgetenv(addressVariable);
    if (!isSilent(addresses, patience))
        return;
    qCWarning(sessionBusLog).noquote()
        << "the session bus does not answer: no notifications, no tray on it, the toolkit's colours"
        << addresses;
    // No transport of this name: connecting fails at once.
    qputenv(addressVariable, "disabled:");
}

void SessionBus::follow(QDBusConnection& bus, const Signal& signal, QObject* receiver,
                        const char* slot) {
    if (!bus.connect(signal.service, signal.path, signal.interface, signal.name, receiver, slot))
        qCWarning(sessionBusLog) << "cannot follow" << signal.interface << signal.name;
}

} // namespace kestrowind
