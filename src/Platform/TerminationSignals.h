#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace kestrowind {

/// Turns SIGTERM, SIGINT and SIGHUP into a signal on the main thread, so that being told to end
/// from outside takes the same path as the quit command. One object a process.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void terminationRequested();

private:
    int m_pipe[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace kestrowind
