import QtQuick
import Kestrowind.DesignSystem

// One preset to choose; the displayed one has a tick.
PopupMenuChoice {
    id: root

    required property int index
    required property string name
    required property bool isSelected
    required symbolName

    signal chosen()

    text: name
    isChosen: isSelected
    onTriggered: root.chosen()
}
