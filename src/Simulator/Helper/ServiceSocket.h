#pragma once

namespace kestrowind {

/// The listening socket that launchd hands to the helper, kept back until the server is ready for
/// it.
///
/// A QDBusServer announces its connections only once its constructor has returned, and the callers
/// for whom launchd started the helper are waiting on the socket by then: accepted any earlier,
/// they would never be heard of. So the server is made on an empty socket, which is then exchanged
/// for launchd's under the same descriptor number.
class ServiceSocket {
public:
    /// Puts the empty socket in the place of launchd's.
    ServiceSocket();
    ServiceSocket(const ServiceSocket&) = delete;
    ServiceSocket& operator=(const ServiceSocket&) = delete;
    ~ServiceSocket();

    /// Whether launchd handed a socket over at all.
    [[nodiscard]] bool isValid() const { return m_launchdSocket >= 0 && m_emptySocket >= 0; }
    /// Lets the waiting callers in. Call once, after the server was made.
    void open();

private:
    int m_launchdSocket = -1;
    int m_emptySocket = -1;
};

} // namespace kestrowind
