#pragma once

#include "UI/MenuBar/PanelWindow.h"

namespace kestrowind {

/// Holds the pointer while the panel is open: clicks on the desktop and on panels move no focus,
/// and X11 tells of them only who holds the pointer. Elsewhere a click outside moves the focus.
class GrabbingPanel final : public PanelWindow {
    Q_OBJECT

public:
    /// A child of the window.
    explicit GrabbingPanel(QWindow& window);

    void setOpen(bool isOpen) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setGrab(bool isGrabbed);

    QWindow& m_window;
    bool m_isOpen = false;
};

} // namespace kestrowind
