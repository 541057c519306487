import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Only the switch; the row that it stands in shows the label that it says.
T.Switch {
    id: root

    required property string label

    implicitWidth: implicitIndicatorWidth
    implicitHeight: implicitIndicatorHeight
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    Accessible.name: label
    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    // As the space bar does.
    function flip() {
        toggle()
        toggled()
    }

    indicator: SwitchTrack {
        width: root.width
        height: root.height
        checked: root.checked
        pressed: root.down
        focused: root.visualFocus
        visualPosition: root.visualPosition
    }
}
