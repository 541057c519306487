import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Only the switch; the row that it stands in shows the label that it says. The owner answers
// flipped(on) by setting isOn.
T.Switch {
    id: root

    required property string label
    required property bool isOn

    signal flipped(bool on)

    function flip(): void {
        if (!enabled)
            return
        toggle()
        toggled()
    }

    rightPadding: implicitIndicatorWidth
    implicitWidth: implicitIndicatorWidth
    implicitHeight: implicitIndicatorHeight
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    checked: isOn
    onToggled: {
        flipped(checked)
        // The click has set it; what counts may be something else.
        checked = Qt.binding(() => root.isOn)
    }
    Accessible.name: label
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()
    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    // In the right padding, in its middle.
    indicator: SwitchTrack {
        x: root.width - (root.rightPadding + width) / 2
        y: Math.round((root.height - height) / 2)
        checked: root.checked
        pressed: root.down
        focused: root.visualFocus
        visualPosition: root.visualPosition
    }
}
