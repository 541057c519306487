import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Stepped by the arrow keys and while dragged. The filled part may carry a gradient's two colours.
T.Slider {
    id: root

    required property string label
    property color startColor: AppColors.fanGradientStart
    property color endColor: AppColors.fanGradientEnd

    implicitWidth: 160
    implicitHeight: 22
    snapMode: T.Slider.SnapAlways
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    Accessible.name: label

    background: Item {
        x: root.leftPadding
        y: root.topPadding
        width: root.availableWidth
        height: root.availableHeight

        Rectangle {
            id: track

            y: Math.round((parent.height - height) / 2)
            width: parent.width
            height: 4
            radius: 2
            color: AppColors.track
        }

        Rectangle {
            y: track.y
            width: root.position > 0 ? knob.x + knob.implicitWidth / 2 - root.leftPadding : 0
            height: 4
            radius: 2
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: root.startColor }
                GradientStop { position: 1; color: root.endColor }
            }
        }
    }

    handle: SliderKnob {
        id: knob

        x: root.leftPadding + root.visualPosition * (root.availableWidth - width)
        y: root.topPadding + (root.availableHeight - height) / 2
        pressed: root.pressed
        focused: root.visualFocus

        Behavior on x {
            enabled: !root.pressed
            SpringMotion { timing: Springs.hover }
        }
    }
}
