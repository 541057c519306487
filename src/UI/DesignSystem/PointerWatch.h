#pragma once

#include <QQuickItem>

namespace kestrowind {

/// An item that knows whether the pointer is over it, and not over a control in it. In place of the
/// toolkit's HoverHandler, which in Qt 6.4 remembers every frame that is drawn while the pointer
/// rests, until it moves: the memory grows with each turn of a fan.
class PointerWatch : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    QML_ELEMENT

public:
    explicit PointerWatch(QQuickItem* parent = nullptr)
        : QQuickItem(parent) {
        setAcceptHoverEvents(true);
    }

    [[nodiscard]] bool isHovered() const { return m_isHovered; }

Q_SIGNALS:
    void hoveredChanged();

protected:
    void hoverEnterEvent(QHoverEvent* event) override { take(event, true); }
    void hoverMoveEvent(QHoverEvent* event) override { take(event, true); }
    void hoverLeaveEvent(QHoverEvent* event) override { take(event, false); }

private:
    void take(QHoverEvent* event, bool isHovered);

    bool m_isHovered = false;
};

} // namespace kestrowind
