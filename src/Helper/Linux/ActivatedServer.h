#pragma once

#include <QDBusServer>

#include <memory>

namespace kestrowind {

/// A D-Bus server on the socket that launchd handed over.
///
/// QDBusServer loses the connections that it accepts before its constructor has returned, and here
/// somebody always waits already: that is why this process was started. So the server is made on a
/// socket that nobody knows, and the real one takes its place when all is ready.
class ActivatedServer {
public:
    ActivatedServer();
    ~ActivatedServer();
    ActivatedServer(const ActivatedServer&) = delete;
    ActivatedServer& operator=(const ActivatedServer&) = delete;

    [[nodiscard]] QDBusServer& server() { return *m_server; }

    /// Lets those in who wait; to be called once newConnection has its receiver. False when this
    /// process was not given a socket.
    [[nodiscard]] bool open();

private:
    int m_handedOver; ///< another descriptor of the real socket; -1 without one
    std::unique_ptr<QDBusServer> m_server;
};

} // namespace kestrowind
