import QtQuick
import Kestrowind.DesignSystem

// Opens a menu below itself.
ActionButton {
    id: root

    required property PopupMenu menu

    Keys.onDownPressed: press()
    onClicked: menu.openAt(root, Qt.point(0, height + Spacing.tight))
}
