import QtQuick
import Kestrowind.Curves

// Ctrl is the command key on a Mac.
Item {
    id: root

    required property CurvesModel model

    Shortcut {
        sequence: "Ctrl+Z"
        enabled: root.model.canUndo
        onActivated: root.model.undo()
    }
    Shortcut {
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        enabled: root.model.canRedo
        onActivated: root.model.redo()
    }
}
