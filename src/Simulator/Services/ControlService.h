#pragma once

#include "Simulator/Services/MachineControl.h"

#include <QLocalServer>

#include <expected>
#include <string>

class QLocalSocket;
class QTimer;

namespace kestrowind {

/// Takes `ctl` commands on the machine's control socket: one line with a JSON array of the words,
/// answered by one line with {"result": ...} or {"error": "..."}, after which the machine hangs up.
class ControlService {
public:
    explicit ControlService(MachineControl& control);

    /// Listens at SimulatedMac::controlSocket; a file left behind by a dead machine is replaced.
    [[nodiscard]] std::expected<void, std::string> listen(const std::filesystem::path& root);

private:
    void acceptClients();
    void read(QLocalSocket* client, QTimer& limit);

    MachineControl& m_control;
    QLocalServer m_server;
};

} // namespace kestrowind
