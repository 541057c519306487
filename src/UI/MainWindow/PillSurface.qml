import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// A translucent capsule that rises towards the pointer.
Item {
    id: root

    required property bool isTinted
    required property bool isLifted
    required property bool isPressed
    required property bool isFocused

    GlowShadow {
        blurRadius: 6
        offset: 2
        strength: root.isLifted ? 0.18 : 0
    }

    CardBackground {
        anchors.fill: parent
        cornerRadius: height / 2
        tint: root.isTinted ? Qt.alpha(AppColors.accent, 0.28) : "transparent"
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: "transparent"
        border.width: 1
        border.color: root.isTinted ? Qt.alpha(AppColors.accent, 0.4) : AppColors.controlBorder
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: "white"
        visible: opacity > 0
        opacity: root.isLifted ? 0.06 : 0

        Behavior on opacity { SpringMotion { timing: Springs.hover } }
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: AppColors.pressedFill
        visible: root.isPressed
    }

    FocusRing {
        shown: root.isFocused
        cornerRadius: root.height / 2
        gap: 0
    }
}
