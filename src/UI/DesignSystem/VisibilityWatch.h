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
    explicit VisibilityWatch(QQuickItem& item);

    [[nodiscard]] bool isSeen() const { return m_isSeen; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void isSeenChanged();

private:
    void follow(QQuickWindow* window);
    void reconsider();

    QQuickItem& m_item;
    QPointer<QQuickWindow> m_window;
    bool m_isSeen = false;
};

} // namespace kestrowind
