#include "Simulator/BootedMac.h"

#include <QElapsedTimer>

#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

/// A socket connected to the helper, or the kernel, with nothing of their protocols about it.
class RawPeer {
public:
    explicit RawPeer(const fs::path& path, int type = SOCK_STREAM)
        : m_descriptor(::socket(AF_UNIX, type | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.string().copy(address.sun_path, sizeof address.sun_path - 1);
        m_isConnected = ::connect(m_descriptor, reinterpret_cast<const sockaddr*>(&address),
                                  sizeof address) == 0;
    }
    RawPeer(RawPeer&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
        , m_isConnected(other.m_isConnected) {}
    ~RawPeer() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] bool isConnected() const { return m_isConnected; }
    void send(std::string_view bytes) const {
        ::send(m_descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    }
    /// What comes within some time; empty when it was hung up on.
    [[nodiscard]] std::string receive(int seconds = 5) const {
        const timeval patience{.tv_sec = seconds, .tv_usec = 0};
        ::setsockopt(m_descriptor, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        char bytes[256];
        const ssize_t size = ::recv(m_descriptor, bytes, sizeof bytes, 0);
        if (size > 0)
            return {bytes, static_cast<std::size_t>(size)};
        return size == 0 || errno == ECONNRESET ? "" : "(nothing)";
    }

private:
    int m_descriptor;
    bool m_isConnected = false;
};

class HostilePeerTest : public HeldFan {
protected:
    void expectUnharmed() {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(holder.status().at("phase"), "controlling");
        EXPECT_LT(timer.elapsed(), 2000);
        EXPECT_EQ(smc->readUInt8("F0md"), 1);
        HelperCaller newcomer(mac, u"newcomer"_s);
        EXPECT_EQ(newcomer.status().at("phase"), "controlling");
        EXPECT_EQ(mac.status()["helper"]["starts"], 1);
    }

    const fs::path socket =
        SimulatedMac::serviceSocket(mac.root(), HelperConstants::machServiceName);
};

TEST_F(HostilePeerTest, WhoTalksRubbishIsHungUpOn) {
    const std::string hello("\0AUTH EXTERNAL", 14);
    for (const std::string& rubbish :
         {std::string("GET / HTTP/1.1\r\n\r\n"), std::string(100'000, '\xff'),
          hello + std::string(100'000, 'A') + "\r\n"}) {
        const RawPeer peer(socket);
        ASSERT_TRUE(peer.isConnected());
        peer.send(rubbish);
        std::string answer = peer.receive();
        while (answer.starts_with("REJECTED") || answer.starts_with("ERROR"))
            answer = peer.receive();
        EXPECT_EQ(answer, "");
    }
    expectUnharmed();
}

TEST_F(HostilePeerTest, WhoTalksRubbishToTheKernelIsHungUpOn) {
    const auto kernel = SimulatedMac::smcSocket(mac.root());
    for (const std::size_t size : {1U, 123U, 125U, 4096U}) {
        const RawPeer peer(kernel, SOCK_SEQPACKET);
        ASSERT_TRUE(peer.isConnected());
        peer.send(std::string(size, 'x'));
        EXPECT_EQ(peer.receive(), "") << size << " bytes";
    }
    expectUnharmed();
}

TEST_F(HostilePeerTest, WhoHangsTakesNobodysPlace) {
    std::vector<RawPeer> peers;
    for (int count = 0; count < 300; ++count) {
        peers.emplace_back(socket);
        EXPECT_TRUE(peers.back().isConnected());
    }
    expectUnharmed();
    const auto pid = mac.status()["helper"]["pid"].get<int>();
    const fs::path descriptors = "/proc/" + std::to_string(pid) + "/fd";
    EXPECT_TRUE(waitUntil([&] {
        return std::distance(fs::directory_iterator(descriptors), fs::directory_iterator()) < 80;
    })) << "the helper keeps what it holds within bounds";
}

TEST_F(HostilePeerTest, WhoFloodsIsHungUpOn) {
    {
        auto peer = QDBusConnection::connectToPeer(HelperWire::busAddress(socket), u"flood"_s);
        auto message = QDBusMessage::createMethodCall(
            QString(), QLatin1StringView(HelperWire::objectPath),
            QLatin1StringView(HelperWire::interfaceName), u"ReleaseControl"_s);
        message.setArguments({u"with an argument that it does not take"_s});
        for (int count = 0; count < 20'000; ++count)
            peer.send(message);
        EXPECT_TRUE(waitUntil([&peer] { return !peer.isConnected(); }));
    }
    QDBusConnection::disconnectFromPeer(u"flood"_s);
    expectUnharmed();
}

TEST_F(HostilePeerTest, OtherUsersAreTurnedAway) {
    const auto isTurnedAway = [this](const char* user) {
        const RawPeer peer(socket);
        peer.send(std::string("\0", 1) + "AUTH EXTERNAL " + user + "\r\n");
        const std::string answer = peer.receive();
        if (!answer.starts_with("OK"))
            return answer.starts_with("REJECTED");
        peer.send("BEGIN\r\n");
        return peer.receive(1).empty();
    };
    if (::getuid() != 0)
        GTEST_SKIP() << "only the superuser can become somebody else";
    EXPECT_EQ(fs::status(socket).permissions(), fs::perms{0600});
    // Even if somebody opened all doors to the socket.
    for (fs::path door = socket.parent_path(); door != mac.root().parent_path();
         door = door.parent_path())
        ::chmod(door.c_str(), 0755);
    ::chmod(socket.c_str(), 0777);
    constexpr uid_t nobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgid(nobody) != 0 || ::setuid(nobody) != 0)
            ::_exit(2);
        ::_exit(isTurnedAway("3635353334") ? 0 : 3);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(isTurnedAway("30")) << "whom it runs as";
    expectUnharmed();
}

} // namespace
} // namespace kestrowind
