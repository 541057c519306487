#include "UI/MenuBar/macOS/NonactivatingPanel.h"

#import <AppKit/AppKit.h>

#include <QWindow>

namespace kestrowind {

/// Clicks in other applications; those in this one come to it as events.
struct NonactivatingPanel::Monitor {
    explicit Monitor(NonactivatingPanel& panel)
        : token([NSEvent addGlobalMonitorForEventsMatchingMask:NSEventMaskLeftMouseDown |
                                                               NSEventMaskRightMouseDown |
                                                               NSEventMaskOtherMouseDown
                                                       handler:^(NSEvent* /*event*/) {
                                                           Q_EMIT panel.clickedElsewhere();
                                                       }]) {}
    ~Monitor() { [NSEvent removeMonitor:token]; }
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;

    id token;
};

PanelWindow* PanelWindow::make(QWindow& window) {
    return new NonactivatingPanel(window);
}

NonactivatingPanel::NonactivatingPanel(QWindow& window)
    : PanelWindow(&window)
    , m_window(window) {}

NonactivatingPanel::~NonactivatingPanel() = default;

void NonactivatingPanel::setOpen(bool isOpen) {
    if (!isOpen) {
        m_monitor.reset();
        return;
    }
    // The toolkit's tool windows are panels already; what follows it sets anew whenever it shows
    // one.
    NSView* view = (__bridge NSView*)reinterpret_cast<void*>(m_window.winId());
    if ([view.window isKindOfClass:[NSPanel class]]) {
        NSPanel* panel = (NSPanel*)view.window;
        panel.styleMask |= NSWindowStyleMaskNonactivatingPanel;
        panel.hidesOnDeactivate = NO;
        panel.becomesKeyOnlyIfNeeded = NO;
        panel.level = NSPopUpMenuWindowLevel;
        panel.collectionBehavior = NSWindowCollectionBehaviorCanJoinAllSpaces |
                                   NSWindowCollectionBehaviorFullScreenAuxiliary;
        [panel makeKeyAndOrderFront:nil];
    }
    m_monitor = std::make_unique<Monitor>(*this);
}

} // namespace kestrowind
