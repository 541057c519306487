import QtQuick
import Kestrowind.DesignSystem

// One preset to choose; the displayed one has a tick.
PopupMenuItem {
    id: root

    required property int index
    required property string name
    required property bool isSelected
    required symbolName

    signal chosen()

    text: name
    checkable: true
    checked: isSelected
    Accessible.role: Accessible.RadioButton
    onToggled: checked = Qt.binding(() => root.isSelected)
    onTriggered: root.chosen()
}
