import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Stepped by the arrow keys and while dragged. The owner answers chosen(value) by setting `setting`,
// whether a pointer, a key or assistive technology chose.
T.Slider {
    id: root

    required property string label
    required property real setting

    // Read by their names for assistive technology.
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    signal chosen(real value)

    implicitWidth: 160
    implicitHeight: 22
    snapMode: T.Slider.SnapAlways
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    value: setting
    onValueChanged: {
        if (value === setting)
            return
        chosen(value)
        // It has been set; what counts may be something else.
        value = Qt.binding(() => root.setting)
    }
    Accessible.name: label

    readonly property real knobSize: 18
    // Springs to a step and follows a drag; knob and filling move together.
    property real knobPosition: visualPosition

    Behavior on knobPosition {
        enabled: !root.pressed
        SpringMotion { timing: Springs.hover }
    }

    // The groove, filled up to the knob.
    background: Item {
        x: root.leftPadding
        y: root.topPadding
        width: root.availableWidth
        height: root.availableHeight

        Rectangle {
            y: Math.round((parent.height - height) / 2)
            width: parent.width
            height: 4
            radius: 2
            color: AppColors.track
        }

        Rectangle {
            y: Math.round((parent.height - height) / 2)
            width: root.knobPosition > 0 ? root.knobPosition * (parent.width - root.knobSize)
                                           + root.knobSize / 2 : 0
            height: 4
            radius: 2
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: AppColors.fanGradientStart }
                GradientStop { position: 1; color: AppColors.fanGradientEnd }
            }
        }
    }

    handle: Rectangle {
        x: root.leftPadding + root.knobPosition * (root.availableWidth - width)
        y: root.topPadding + (root.availableHeight - height) / 2
        width: root.knobSize
        height: root.knobSize
        radius: width / 2
        color: AppColors.knob
        border.width: 1
        border.color: Qt.alpha("black", 0.16)

        // A soft edge below, in place of a blurred shadow.
        Rectangle {
            z: -1
            x: -1
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

        FocusRing { shown: root.visualFocus; cornerRadius: parent.radius; gap: 0 }
    }
}
