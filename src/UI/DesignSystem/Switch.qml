import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Only the switch; the row that it stands in shows the label that it says.
T.Switch {
    id: root

    required property string label

    implicitWidth: 38
    implicitHeight: 22
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

    indicator: Rectangle {
        width: root.width
        height: root.height
        radius: height / 2
        color: root.checked ? AppColors.accentFill : AppColors.track
        border.width: 1
        border.color: root.checked ? "transparent" : AppColors.controlBorder

        Behavior on color { ColorAnimation { duration: 150 } }

        Rectangle {
            x: 2 + root.visualPosition * (parent.width - width - 4)
            y: 2
            width: parent.height - 4
            height: width
            radius: width / 2
            color: AppColors.knob
            border.width: 1
            border.color: Qt.alpha("black", 0.12)

            Behavior on x {
                enabled: !root.down
                SpringMotion { timing: Springs.hover }
            }
        }

        FocusRing { shown: root.visualFocus; cornerRadius: parent.radius }
    }
}
