#include "Fuzz/Require.h"
#include "Simulator/Link/SMCWire.h"
#include "Simulator/Services/SMCService.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace kestrowind;

namespace {

/// A simulated kernel with one fan, and the way in.
class Kernel {
public:
    Kernel() {
        m_smc.setByte("FNum", 1);
        m_smc.setFloat("F0Ac", 2000);
    }

    [[nodiscard]] int connect() const {
        const int client = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, m_path.c_str(), sizeof address.sun_path - 1);
        KESTROWIND_REQUIRE(
            ::connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0);
        return client;
    }

    [[nodiscard]] std::size_t openConnections() const { return m_smc.openConnections(); }

private:
    QTemporaryDir m_folder;
    std::string m_path = m_folder.filePath(QStringLiteral("smc")).toStdString();
    SimulatedSMC m_smc;
    SMCService m_service{m_smc, std::move(*ListeningSocket::listen(m_path, SOCK_SEQPACKET))};
};

} // namespace

/// Messages to the simulated kernel's socket; the first byte of each is its length. Whatever they
/// are, a client that hangs up leaves nothing behind.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
    static Kernel kernel;

    const int client = kernel.connect();
    while (size > 0) {
        std::uint8_t message[256] = {};
        const std::size_t length = std::min<std::size_t>(data[0], size - 1);
        std::memcpy(message, data + 1, length);
        data += 1 + length;
        size -= 1 + length;
        // Short input is filled up, so that most messages have the length of a request.
        const std::size_t sent = length > 200 ? length : sizeof(SMCWire::Request);
        if (::send(client, message, sent, MSG_NOSIGNAL | MSG_DONTWAIT) < 0)
            break;
    }
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    ::close(client);
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    KESTROWIND_REQUIRE(kernel.openConnections() == 0);
    return 0;
}
