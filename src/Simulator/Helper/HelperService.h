#pragma once

#include "Simulator/Helper/FanController.h"
#include "Simulator/Helper/HelperBehaviour.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QTimer>

#include <filesystem>

namespace kestrowind {

/// The helper's D-Bus side: answers the five methods on every connection, drives the controller's
/// clock while it holds fans, and gives them back as soon as the connection that set the targets is
/// gone.
class HelperService final : public QDBusVirtualObject {
    Q_OBJECT

public:
    /// root is the folder of the simulated Mac. Both references must outlive the service.
    HelperService(FanController& controller, QDBusServer& server, std::filesystem::path root);
    ~HelperService() override;

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

Q_SIGNALS:
    /// The helper is to end; the last reply has reached its caller.
    void finished();

private:
    void accept(const QDBusConnection& connection);
    void loseConnection(const QString& name);
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
    QString m_owner; ///< name of the connection that set the targets
};

} // namespace kestrowind
