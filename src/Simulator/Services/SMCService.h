#pragma once

#include "Simulator/Services/ListeningSocket.h"
#include "Simulator/SimulatedSMC.h"

#include <QSocketNotifier>

#include <map>
#include <memory>
#include <set>

namespace kestrowind {

/// The simulated kernel's side of the SMC's user client: answers SMCWire requests on a socket. A
/// client reaches only the connections that it opened itself, they close when it hangs up, and one
/// that sends nonsense or does not read its replies is hung up on.
class SMCService {
public:
    SMCService(SimulatedSMC& smc, ListeningSocket socket);
    ~SMCService();
    SMCService(const SMCService&) = delete;
    SMCService& operator=(const SMCService&) = delete;

private:
    struct Client {
        int descriptor;
        std::set<std::uint32_t> connections;
        std::unique_ptr<QSocketNotifier> notifier;
    };

    void acceptClients();
    void serve(int descriptor);
    /// False when the client is to be hung up on.
    [[nodiscard]] bool answerOne(Client& client, bool& isDrained);
    void hangUp(int descriptor);

    SimulatedSMC& m_smc;
    ListeningSocket m_socket;
    QSocketNotifier m_notifier;
    std::map<int, Client> m_clients; ///< by descriptor
};

} // namespace kestrowind
