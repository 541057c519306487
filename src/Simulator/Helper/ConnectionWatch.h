#pragma once

#include <QDBusConnection>
#include <QObject>

namespace kestrowind {

/// Tells once when one peer-to-peer connection has ended, and deletes itself then. The D-Bus
/// library sends itself a signal for that, which does not say whose connection it was.
class ConnectionWatch final : public QObject {
    Q_OBJECT

public:
    ConnectionWatch(QDBusConnection connection, QObject* parent);

Q_SIGNALS:
    void lost(const QString& connectionName);

private Q_SLOTS:
    void reportLoss();

private:
    QString m_name;
};

} // namespace kestrowind
