import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Only the switch; the row that it stands in shows the label that it says. The owner answers
// flipped(on) by setting isOn.
T.Switch {
    id: root

    required property string label
    required property bool isOn

    signal flipped(bool on)

    function flip(): void {
        if (!enabled)
            return
        toggle()
        toggled()
    }

    rightPadding: implicitIndicatorWidth
    implicitWidth: implicitIndicatorWidth
    implicitHeight: implicitIndicatorHeight
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    checked: isOn
    onToggled: {
        flipped(checked)
        // The click has set it; what counts may be something else.
        checked = Qt.binding(() => root.isOn)
    }
    Accessible.name: label
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()
    AcceptKeys.onPressed: flip()

    // In the right padding, in its middle.
    indicator: Rectangle {
        x: root.width - (root.rightPadding + width) / 2
        y: Math.round((root.height - height) / 2)
        implicitWidth: 38
        implicitHeight: 22
        radius: height / 2
        color: root.checked ? AppColors.accentFill : AppColors.track
        border.width: 1
        border.color: root.checked ? "transparent" : AppColors.controlBorder

        Behavior on color { ColorAnimation { duration: 150 } }

        Rectangle {
            x: 2 + root.visualPosition * (parent.width - width - 4)
            y: 2
            width: parent.height - 4
            height: width
            radius: width / 2
            color: AppColors.knob
            border.width: 1
            border.color: Qt.alpha("black", 0.12)

            Behavior on x {
                enabled: !root.down
                SpringMotion { timing: Springs.hover }
            }
        }

        FocusRing { shown: root.visualFocus; cornerRadius: parent.radius }
    }
}
