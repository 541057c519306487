#pragma once

#include <QObject>

class QWindow;

namespace kestrowind {

/// What a desktop needs to be told so that a window behaves like the panel of a menu-bar item, and
/// what it tells of clicks that the window does not get. Belongs to the main thread.
class PanelWindow : public QObject {
    Q_OBJECT

public:
    /// Made for the desktop that the application runs on, and owned by the window.
    [[nodiscard]] static PanelWindow* make(QWindow& window);

    /// After the window was shown, and before it is hidden.
    virtual void setOpen(bool isOpen) = 0;

Q_SIGNALS:
    /// While it is open, somewhere outside of it.
    void clickedElsewhere();

protected:
    using QObject::QObject;
};

} // namespace kestrowind
