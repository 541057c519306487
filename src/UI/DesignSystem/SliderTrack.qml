import QtQuick
import Kestrowind.DesignSystem

// The groove of a Slider, filled up to its knob.
Item {
    id: root

    required property real filledWidth
    required property color startColor
    required property color endColor

    Rectangle {
        id: groove

        y: Math.round((parent.height - height) / 2)
        width: parent.width
        height: 4
        radius: 2
        color: AppColors.track
    }

    Rectangle {
        y: groove.y
        width: root.filledWidth
        height: groove.height
        radius: groove.radius
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: root.startColor }
            GradientStop { position: 1; color: root.endColor }
        }
    }
}
