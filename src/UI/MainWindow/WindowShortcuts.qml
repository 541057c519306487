import QtQuick

// The commands of the window that have no button. Ctrl is the command key on a Mac.
Item {
    id: root

    signal sectionRequested(int index)
    signal closeRequested()
    signal quitRequested()

    Shortcut { sequence: "Ctrl+1"; onActivated: root.sectionRequested(0) }
    Shortcut { sequence: "Ctrl+2"; onActivated: root.sectionRequested(1) }
    Shortcut { sequence: "Ctrl+3"; onActivated: root.sectionRequested(2) }
    Shortcut { sequence: "Ctrl+4"; onActivated: root.sectionRequested(3) }
    Shortcut { sequence: "Ctrl+W"; onActivated: root.closeRequested() }
    Shortcut { sequence: "Ctrl+Q"; onActivated: root.quitRequested() }
}
