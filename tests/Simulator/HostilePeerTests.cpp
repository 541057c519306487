#include "Simulator/BootedMac.h"

#include <QElapsedTimer>

#include <cerrno>
#include <list>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
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
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        path.string().copy(address.sun_path, sizeof address.sun_path - 1);
        const auto* name = reinterpret_cast<const sockaddr*>(&address);
        EXPECT_EQ(::connect(m_descriptor, name, sizeof address), 0);
    }
    ~RawPeer() { ::close(m_descriptor); }
    RawPeer(const RawPeer&) = delete;
    RawPeer& operator=(const RawPeer&) = delete;

    void send(std::string_view bytes) const {
        ::send(m_descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    }
    /// What comes within some time; empty when it was hung up on.
    [[nodiscard]] std::string receive() const {
        const timeval patience{.tv_sec = 5, .tv_usec = 0};
        ::setsockopt(m_descriptor, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        char bytes[256];
        const ssize_t size = ::recv(m_descriptor, bytes, sizeof bytes, 0);
        if (size > 0)
            return {bytes, static_cast<std::size_t>(size)};
        return size == 0 || errno == ECONNRESET ? "" : "(nothing)";
    }

private:
    int m_descriptor;
};

class HostilePeerTest : public HeldFan {
protected:
    void expectUnharmed() {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(HelperCaller(mac, u"newcomer"_s).status().at("phase"), "controlling");
        EXPECT_EQ(holder.status().at("phase"), "controlling") << "though the newcomer went";
        EXPECT_LT(timer.elapsed(), 2000);
        EXPECT_EQ(mac.status()["helper"]["starts"], 1);
        EXPECT_EQ(smc->readUInt8("F0md"), 1);
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
        peer.send(rubbish);
        std::string answer = peer.receive();
        while (answer.starts_with("REJECTED") || answer.starts_with("ERROR"))
            answer = peer.receive();
        EXPECT_EQ(answer, "");
    }
    for (const std::size_t size : {1U, 123U, 125U, 4096U}) {
        const RawPeer peer(SimulatedMac::smcSocket(mac.root()), SOCK_SEQPACKET);
        peer.send(std::string(size, 'x'));
        EXPECT_EQ(peer.receive(), "") << size << " bytes";
    }
    expectUnharmed();
}

TEST_F(HostilePeerTest, WhoHangsTakesNobodysPlace) {
    std::list<RawPeer> peers;
    for (int count = 0; count < 300; ++count)
        peers.emplace_back(socket);
    expectUnharmed();
    const auto pid = mac.status()["helper"]["pid"].get<int>();
    const fs::path descriptors = "/proc/" + std::to_string(pid) + "/fd";
    EXPECT_TRUE(waitUntil([&] {
        return std::distance(fs::directory_iterator(descriptors), fs::directory_iterator()) < 80;
    })) << "the helper keeps what it holds within bounds";
}

TEST_F(HostilePeerTest, WhoFloodsIsHungUpOn) {
    {
        auto peer = QDBusConnection::connectToPeer(HelperCaller::address(mac), u"flood"_s);
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
    if (::getuid() != 0)
        GTEST_SKIP() << "only the superuser can become somebody else";
    EXPECT_EQ(fs::status(socket).permissions(), fs::perms{0600});
    // Even if somebody opened all doors to the socket.
    for (fs::path door = socket.parent_path(); door != mac.root().parent_path();
         door = door.parent_path())
        ::chmod(door.c_str(), 0755);
    ::chmod(socket.c_str(), 0777);
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(::seteuid(nobody), 0);
    EXPECT_EQ(::euidaccess(socket.c_str(), W_OK), 0) << "the doors are open";
    const QDBusMessage answer = HelperCaller(mac, u"stranger"_s).call(u"Status"_s);
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_EQ(answer.type(), QDBusMessage::ErrorMessage);
    expectUnharmed();
}

} // namespace
} // namespace kestrowind
