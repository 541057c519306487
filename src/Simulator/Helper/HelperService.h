#pragma once

#include "Simulator/Helper/FanController.h"
#include "Simulator/Helper/HelperBehaviour.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QTimer>

#include <chrono>
#include <filesystem>
#include <map>

namespace kestrowind {

/// The helper's D-Bus side: answers the five methods on every connection, drives the controller's
/// clock while it holds fans, and gives them back as soon as the connection that set the targets is
/// gone.
///
/// The D-Bus library lets in the user that the helper runs as, by the credentials of the socket,
/// and nobody else. Even so, no caller is trusted: every value is checked, a caller that floods is
/// hung up on, and so are the idlest ones when there are too many.
class HelperService final : public QDBusVirtualObject {
    Q_OBJECT

public:
    static constexpr std::size_t mostPeers = 32;
    /// Far more than the application ever makes.
    static constexpr int mostCallsPerSecond = 200;

    /// root is the folder of the simulated Mac. Both references must outlive the service.
    HelperService(FanController& controller, QDBusServer& server, std::filesystem::path root);

    /// Nobody asks: both sides know the methods.
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

Q_SIGNALS:
    /// The helper is to end; the last reply has reached its caller.
    void finished();

private Q_SLOTS:
    void dropLostPeers();

private:
    using Clock = std::chrono::steady_clock;

    struct Peer {
        bool hasCalled = false;
        Clock::time_point lastWord; ///< or when it came
        Clock::time_point secondBegan;
        int callsThisSecond = 0;
    };

    /// Counts a call; false when the peer makes too many, or was hung up on.
    [[nodiscard]] bool admitCall(const QString& name);
    void makeRoom();
    /// The fans that the peer held are the system's at once.
    void hangUp(const QString& name);
    void accept(const QDBusConnection& connection);
    [[nodiscard]] QDBusMessage act(const QDBusMessage& message, const QDBusConnection& connection,
                                   const HelperBehaviour& behaviour);
    [[nodiscard]] QDBusMessage setTargets(const QDBusMessage& message,
                                          const QDBusConnection& connection,
                                          const HelperBehaviour& behaviour);
    [[nodiscard]] QDBusMessage status(const QDBusMessage& message,
                                      const HelperBehaviour& behaviour);
    [[nodiscard]] QDBusMessage uninstall(const QDBusMessage& message);
    void reply(const QDBusMessage& reply, const QDBusConnection& connection,
               const HelperBehaviour& behaviour, bool isLast);
    void finishAfterReplies(const QDBusConnection& connection);
    void tick();

    FanController& m_controller;
    std::filesystem::path m_root;
    QTimer m_ticks;
    std::map<QString, Peer> m_peers; ///< by the name of the connection
    QString m_owner;                 ///< name of the connection that set the targets
};

} // namespace kestrowind
