#pragma once

#include <QObject>
#include <QPointF>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QPixmap;

namespace kestrowind {

/// Lets the pointer take a card along: a drag of the platform's own, with a text and a picture of
/// the card, so that it can leave the window and Escape ends it.
class CardDrag : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isDragging READ isDragging NOTIFY isDraggingChanged FINAL)
    QML_ELEMENT

public:
    using QObject::QObject;

    /// The picture to be carried: the card as its window shows it, within its rounded corners.
    /// Where a desktop cannot show what lies behind them, they have the window's colour.
    [[nodiscard]] static QPixmap picture(const QQuickItem& card, double cornerRadius);

    [[nodiscard]] bool isDragging() const { return m_isDragging; }

    /// Soon after, unless the button was let go meanwhile. `grabbedAt` is where the pointer holds
    /// the card, in its coordinates.
    Q_INVOKABLE void start(QQuickItem* card, double cornerRadius, const QString& text,
                           const QPointF& grabbedAt);

Q_SIGNALS:
    void isDraggingChanged();

private:
    void setDragging(bool isDragging);

    bool m_isDragging = false;
};

} // namespace kestrowind
