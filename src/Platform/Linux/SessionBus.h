#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QString>

#include <chrono>

namespace kestrowind::SessionBus {

/// Whether somebody takes the connection at the first of the addresses, in the form of
/// DBUS_SESSION_BUS_ADDRESS, where somebody does, but says nothing for so long. Waits for a bus
/// that answers no longer than it takes. A bus that is not there is not silent, nor is one that is
/// reached by something else than a local socket.
[[nodiscard]] bool isSilent(const QByteArray& addresses, std::chrono::milliseconds patience);

/// Makes a silent session bus one that is not there, for this process and those that it starts. To
/// be called before anything of the toolkit's: each of its connections, on which it waits, would
/// take 25 s to fail, and the one to the helper waits for those before it.
void leaveASilentOne();

struct Signal {
    QString service;
    QString path;
    QString interface;
    QString name;
};

/// Calls the receiver's slot, as written by SLOT, at each such signal. Logs where that is refused.
void follow(QDBusConnection& bus, const Signal& signal, QObject* receiver, const char* slot);

} // namespace kestrowind::SessionBus
