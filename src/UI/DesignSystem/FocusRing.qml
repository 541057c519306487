import QtQuick
import Kestrowind.DesignSystem

// Around the control that the keyboard works on; a child of what it surrounds.
Rectangle {
    id: root

    required property bool shown
    property real cornerRadius: Radius.control
    property real gap: 2

    anchors.fill: parent
    anchors.margins: -gap - border.width
    radius: cornerRadius + gap + border.width
    color: "transparent"
    border.width: 3
    border.color: AppColors.focusRing
    visible: shown
}
