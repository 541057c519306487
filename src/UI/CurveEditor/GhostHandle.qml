import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// The point that a click would add, with its values.
Item {
    id: root

    required property curveCallout ghost
    required property rect bounds

    visible: ghost.isShown

    Rectangle {
        x: root.ghost.position.x - width / 2
        y: root.ghost.position.y - height / 2
        width: 16
        height: 16
        radius: 8
        color: Qt.alpha(AppColors.accent, 0.18)
        border.width: 1.5
        border.color: Qt.alpha(AppColors.accent, 0.75)

        Rectangle {
            anchors.centerIn: parent
            width: 7
            height: 1.5
            color: AppColors.accent
        }
        Rectangle {
            anchors.centerIn: parent
            width: 1.5
            height: 7
            color: AppColors.accent
        }
    }

    CalloutBubble {
        anchorPoint: root.ghost.position
        bounds: root.bounds
        distance: 14
        text: root.ghost.text
        isQuiet: true
    }
}
