#pragma once

#include <QHash>
#include <QObject>
#include <QTimer>

class QQuickWindow;

namespace kestrowind {

/// Asks for the frames of all that turns in a window, as few as look smooth: whatever turns slower
/// than the rest turns on with the rest's frames. No item is dirty for it, so that a frame costs no
/// more than drawing what turned.
class FrameClock final : public QObject {
    Q_OBJECT

public:
    /// The window's one; made on first use, owned by the window.
    [[nodiscard]] static FrameClock& of(QQuickWindow& window);

    /// How fast the outermost point of something moves, in points a second; 0 when it stands still
    /// or nobody sees it.
    void setSpeed(const QObject& mover, double pointsPerSecond);

private:
    explicit FrameClock(QQuickWindow& window);
    void await();

    QQuickWindow& m_window;
    QHash<const QObject*, double> m_speeds;
    QTimer m_nextFrame;
};

} // namespace kestrowind
