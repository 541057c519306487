#pragma once

#include "UI/MenuBar/PanelWindow.h"

#include <memory>

namespace kestrowind {

/// A panel of the window server that takes the keyboard without making its application the active
/// one, stays while another one is, and hears of clicks in other applications.
class NonactivatingPanel final : public PanelWindow {
    Q_OBJECT

public:
    /// A child of the window.
    explicit NonactivatingPanel(QWindow& window);
    ~NonactivatingPanel() override;

    void setOpen(bool isOpen) override;

private:
    struct Monitor;

    QWindow& m_window;
    std::unique_ptr<Monitor> m_monitor; ///< while it is open
};

} // namespace kestrowind
