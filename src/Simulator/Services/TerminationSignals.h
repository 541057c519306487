#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace kestrowind {

/// SIGTERM and SIGINT as events of the event loop. Made before any other thread, which would
/// otherwise be killed by them; child processes have to unblock them again.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

    /// To be called once there is an event loop in this thread.
    void watch();

Q_SIGNALS:
    /// sentToGroup: it came from the terminal, so that child processes have received it as well.
    void received(int number, bool sentToGroup);

private:
    void read();

    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace kestrowind
