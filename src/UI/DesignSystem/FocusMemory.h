#pragma once

#include <QPointer>
#include <QQuickItem>

namespace kestrowind {

/// Who had the keyboard before a popup took it, and whether that showed.
class FocusMemory : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    /// What has the focus in the item's window now; nothing without a window.
    Q_INVOKABLE void remember(const QQuickItem* inWindowOf);
    /// Nothing when who had it is gone.
    Q_INVOKABLE void giveBack();

private:
    QPointer<QQuickItem> m_item;
    Qt::FocusReason m_reason = Qt::OtherFocusReason;
};

} // namespace kestrowind
