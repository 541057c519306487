import QtQuick
import Kestrowind.DesignSystem

// The body of a push button: resting, hovered, pressed, disabled.
Rectangle {
    id: root

    required property bool prominent
    property bool destructive: false
    required property bool hovered
    required property bool pressed

    radius: Radius.control
    color: prominent ? (destructive ? AppColors.dangerFill : AppColors.accentFill)
                     : AppColors.controlFill
    border.width: prominent ? 0 : 1
    border.color: AppColors.controlBorder

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: root.prominent ? (root.pressed ? Qt.alpha("black", 0.18) : Qt.alpha("white", 0.10))
                              : (root.pressed ? AppColors.pressedFill : AppColors.hoverFill)
        opacity: root.pressed || (root.hovered && root.enabled) ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: 120 } }
    }
}
