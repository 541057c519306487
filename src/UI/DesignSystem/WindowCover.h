#pragma once

#include <QObject>

class QWindow;

namespace kestrowind {

/// Whether other windows wholly cover one. Known on X11 as long as nothing composes the desktop;
/// elsewhere never true, since the toolkit takes such a window for not exposed where the system
/// tells.
class WindowCover : public QObject {
    Q_OBJECT

public:
    /// The window's one; made on first use, owned by the window.
    [[nodiscard]] static WindowCover& of(QWindow& window);

    [[nodiscard]] bool isCovered() const { return m_isCovered; }

Q_SIGNALS:
    void isCoveredChanged();

protected:
    explicit WindowCover(QWindow& window);
    void setCovered(bool isCovered);

private:
    /// What the system tells of the window, if it does.
    [[nodiscard]] static WindowCover* make(QWindow& window);

    bool m_isCovered = false;
};

} // namespace kestrowind
