#pragma once

#include <QObject>
#include <QPointer>

class QQuickItem;
class QQuickWindow;

namespace kestrowind {

/// Whether anybody can see an item: it is visible, and its window is shown, not minimised and not
/// wholly covered (as far as the platform tells).
class VisibilityWatch final : public QObject {
    Q_OBJECT

public:
    VisibilityWatch() = default;
    explicit VisibilityWatch(QQuickItem& item) { watch(&item); }

    /// Null when there is none yet, or no longer.
    [[nodiscard]] QQuickItem* item() const { return m_item; }
    void watch(QQuickItem* item);

    /// Nothing to watch is nothing to see.
    [[nodiscard]] bool isSeen() const { return m_isSeen; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void isSeenChanged();

private:
    void follow(QQuickWindow* window);
    void reconsider();
    void takeSeen(bool isSeen);

    QQuickItem* m_item = nullptr;
    QPointer<QQuickWindow> m_window;
    bool m_isSeen = false;
};

} // namespace kestrowind
