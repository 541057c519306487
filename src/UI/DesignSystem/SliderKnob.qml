import QtQuick
import Kestrowind.DesignSystem

Rectangle {
    id: root

    required property bool pressed
    required property bool focused

    implicitWidth: 18
    implicitHeight: 18
    radius: width / 2
    color: AppColors.knob
    border.width: 1
    border.color: Qt.alpha("black", 0.16)

    // A soft edge below, in place of a blurred shadow.
    Rectangle {
        z: -1
        x: -1
        y: 0
        width: parent.width + 2
        height: parent.height + 2
        radius: width / 2
        color: Qt.alpha("black", 0.10)
    }

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: Qt.alpha("black", 0.06)
        visible: root.pressed
    }

    FocusRing { shown: root.focused; cornerRadius: parent.radius; gap: 0 }
}
