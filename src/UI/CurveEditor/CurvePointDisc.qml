import QtQuick
import Kestrowind.DesignSystem

// A handle's look: a white disc with a coloured rim; only a dot where nothing can be moved.
Rectangle {
    id: root

    required property bool isEditable
    required property bool isLit
    required property bool isFocused

    radius: width / 2
    color: isEditable ? "white" : AppColors.fanGradientEnd
    border.width: isEditable ? 2.5 : 1.5
    border.color: isEditable ? (isLit ? AppColors.accentFill : AppColors.fanGradientEnd)
                             : AppColors.popupBackground

    // A soft edge, in place of a blurred shadow.
    Rectangle {
        z: -1
        visible: root.isEditable
        x: -1.5
        y: -1
        width: parent.width + 3
        height: parent.height + 2.5
        radius: width / 2
        color: Qt.alpha("black", root.isLit ? 0.26 : 0.16)

        Behavior on color { ColorAnimation { duration: 120 } }
    }

    FocusRing {
        shown: root.isFocused
        cornerRadius: root.radius
        gap: 2
    }
}
