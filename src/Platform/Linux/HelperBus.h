#pragma once

#include "Platform/HelperConnection.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace kestrowind {

/// The helper connection inside a simulated Mac: D-Bus, peer to peer, over the socket that launchd
/// holds for the service. Handlers are called on the thread that made the object.
///
/// A helper that dies interrupts the connection: calls that wait get their error handler, and the
/// next call connects again, upon which launchd starts a new helper. Only a service that does not
/// exist invalidates it.
class HelperBus final : public QObject, public HelperConnection {
    Q_OBJECT

public:
    explicit HelperBus(QString machServiceName);
    ~HelperBus() override;

    void setInvalidationHandler(std::function<void()> handler) override;
    void setTargets(const std::vector<double>& targets, Reply<std::vector<double>> reply,
                    ErrorHandler error) override;
    void releaseControl(Reply<> reply, ErrorHandler error) override;
    void status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) override;
    void uninstall(Reply<bool> reply, ErrorHandler error) override;
    void shutDown(Reply<> reply, ErrorHandler error) override;

private:
    using Deliver = std::function<void(const QDBusMessage& reply)>;

    /// The helper that the last call reached is gone.
    [[nodiscard]] bool isInterrupted() const;
    bool connectToService();
    void disconnectFromService();
    void fail(const ErrorHandler& error, const QString& description);
    void invalidate();
    /// Sends one call and delivers a reply of exactly this D-Bus signature.
    void call(const QString& method, const QVariantList& arguments, const QString& replySignature,
              Deliver deliver, ErrorHandler error);

    QString m_machServiceName;
    std::function<void()> m_invalidationHandler;
    QString m_peerName; ///< name of the open peer connection, empty while there is none
};

} // namespace kestrowind
