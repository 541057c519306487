#pragma once

#include "Helper/HelperListener.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QTimer>

#include <map>

namespace kestrowind {

class HelperService;

/// Answers the five methods over D-Bus, peer to peer, on the main thread's event loop.
///
/// The D-Bus library lets in the user that the helper runs as, by the credentials of the socket,
/// and nobody else.
class BusListener : public QDBusVirtualObject, public HelperListener {
    Q_OBJECT

public:
    /// The server must outlive the listener.
    explicit BusListener(QDBusServer& server);

    /// Must be called before anybody is let in; the service must outlive the listener.
    void setService(HelperService& service) { m_service = &service; }

    void hangUp(CallerID caller) override;
    void setTicking(bool isTicking) override;

    /// Nobody asks: both sides know the methods.
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) final;

Q_SIGNALS:
    /// The helper is to end; the last reply has reached its caller.
    void finished();

protected:
    /// Answers a call whose method and signature are right.
    virtual void answer(const QDBusMessage& call, const QDBusConnection& connection);

    /// Does what the call asks for, and returns the reply to it.
    [[nodiscard]] QDBusMessage act(const QDBusMessage& call, const QDBusConnection& connection);
    /// Sends the reply, and ends the helper after it if the call was one that does.
    void send(const QDBusMessage& reply, const QDBusMessage& call,
              const QDBusConnection& connection);

private Q_SLOTS:
    void dropLostPeers();

private:
    void accept(const QDBusConnection& connection);
    [[nodiscard]] QDBusMessage setTargets(const QDBusMessage& call,
                                          const QDBusConnection& connection);
    void finishAfterReplies(const QDBusConnection& connection);

    HelperService* m_service = nullptr;
    QTimer m_ticks;
    CallerID m_lastCaller = 0;
    std::map<QString, CallerID> m_callers; ///< by the name of the connection
};

} // namespace kestrowind
