import QtQuick
import Kestrowind.DesignSystem

// One of the choices of a PopupMenu; the chosen one has a tick. The owner answers triggered() by
// setting isChosen.
PopupMenuItem {
    id: root

    required property bool isChosen

    checkable: true
    checked: isChosen
    // The click has set it; what counts may be something else.
    onToggled: checked = Qt.binding(() => root.isChosen)
}
