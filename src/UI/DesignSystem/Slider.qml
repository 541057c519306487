import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Stepped by the arrow keys and while dragged. The owner answers chosen(value) by setting `setting`,
// whether a pointer, a key or assistive technology chose. The filled part may carry a gradient's two
// colours.
T.Slider {
    id: root

    required property string label
    required property real setting
    property color startColor: AppColors.fanGradientStart
    property color endColor: AppColors.fanGradientEnd

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

    background: SliderTrack {
        x: root.leftPadding
        y: root.topPadding
        width: root.availableWidth
        height: root.availableHeight
        filledWidth: root.knobPosition > 0 ? root.knobPosition * (root.availableWidth - root.knobSize)
                                             + root.knobSize / 2 : 0
        startColor: root.startColor
        endColor: root.endColor
    }

    handle: SliderKnob {
        x: root.leftPadding + root.knobPosition * (root.availableWidth - width)
        y: root.topPadding + (root.availableHeight - height) / 2
        width: root.knobSize
        height: root.knobSize
        pressed: root.pressed
        focused: root.visualFocus
    }
}
