#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace kestrowind {

/// Tells when the desktop has a place for the icon: at once, or when its panel has started. Where
/// there is a session bus it listens there, and otherwise looks a few times in the first minute.
class SystemTrayWatch final : public QObject {
    Q_OBJECT

public:
    /// Whether there is a tray now.
    using Look = std::function<bool()>;

    explicit SystemTrayWatch(Look isTrayThere);
    ~SystemTrayWatch() override;

    /// Emits `found` once, perhaps before it returns, or `missing` once and goes on looking.
    void start();
    /// Brings the next of its looks forward, where there is still one to come.
    void lookNow();

Q_SIGNALS:
    void found();
    void missing();

private:
    /// What a desktop that is still starting gets before the first look.
    static constexpr std::chrono::milliseconds firstWait{1500};

    void look();

    std::unique_ptr<QObject> m_watcher; ///< tells of a panel that has started
    Look m_isTrayThere;
    QTimer m_nextLook;
    int m_looks = 0;
    bool m_isMissing = false;
};

} // namespace kestrowind
