#pragma once

#include <QObject>
#include <QTimer>

#include <memory>

class QDBusServiceWatcher;

namespace kestrowind {

/// Tells when the desktop has a place for the icon: at once, or when its panel has started. It
/// listens on the session bus and otherwise looks a few times in the first minute.
class SystemTrayWatch final : public QObject {
    Q_OBJECT

public:
    explicit SystemTrayWatch(QObject* parent = nullptr);
    ~SystemTrayWatch() override;

    /// Emits `found` once, perhaps before it returns, or `missing` once and goes on looking.
    void start();

Q_SIGNALS:
    void found();
    void missing();

private:
    void look();

    std::unique_ptr<QDBusServiceWatcher> m_watcher;
    QTimer m_nextLook;
    int m_looks = 0;
    bool m_isMissing = false;
};

} // namespace kestrowind
