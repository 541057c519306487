import QtQuick
import Kestrowind.DesignSystem

// A capsule that fills from the left.
Item {
    id: root

    required property real fraction
    required property bool filled
    required property bool muted

    property real shownFraction: fraction
    Behavior on shownFraction { SpringMotion { timing: Springs.level } }

    implicitHeight: 4

    Rectangle {
        anchors.fill: parent
        radius: 2
        color: AppColors.quaternaryFill
        opacity: root.muted ? 0.35 : 1

        // The shadow of its upper edge.
        Rectangle {
            anchors.fill: parent
            radius: 2
            gradient: Gradient {
                GradientStop { position: 0; color: Qt.alpha("black", 0.15) }
                GradientStop { position: 0.5; color: Qt.alpha("black", 0) }
            }
        }
    }

    Rectangle {
        visible: root.filled
        width: Math.max(8, root.width * root.shownFraction)
        height: parent.height
        radius: 2
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: AppColors.fanGradientStart }
            GradientStop { position: 1; color: AppColors.fanGradientEnd }
        }
    }
}
