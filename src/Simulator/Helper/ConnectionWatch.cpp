#include "Simulator/Helper/ConnectionWatch.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

ConnectionWatch::ConnectionWatch(QDBusConnection connection, QObject* parent)
    : QObject(parent)
    , m_name(connection.name()) {
    if (!connection.connect(QString(), u"/org/freedesktop/DBus/Local"_s,
                            u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                            SLOT(reportLoss())))
        qWarning() << "cannot tell when a caller goes";
}

void ConnectionWatch::reportLoss() {
    Q_EMIT lost(m_name);
    QDBusConnection::disconnectFromPeer(m_name);
    deleteLater();
}

} // namespace kestrowind
