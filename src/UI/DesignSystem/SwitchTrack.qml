import QtQuick
import Kestrowind.DesignSystem

// What is seen of a switch.
Rectangle {
    id: root

    required property bool checked
    required property bool pressed
    required property bool focused
    required property real visualPosition

    implicitWidth: 38
    implicitHeight: 22
    radius: height / 2
    color: checked ? AppColors.accentFill : AppColors.track
    border.width: 1
    border.color: checked ? "transparent" : AppColors.controlBorder

    Behavior on color { ColorAnimation { duration: 150 } }

    Rectangle {
        x: 2 + root.visualPosition * (root.width - width - 4)
        y: 2
        width: root.height - 4
        height: width
        radius: width / 2
        color: AppColors.knob
        border.width: 1
        border.color: Qt.alpha("black", 0.12)

        Behavior on x {
            enabled: !root.pressed
            SpringMotion { timing: Springs.hover }
        }
    }

    FocusRing { shown: root.focused; cornerRadius: root.radius }
}
