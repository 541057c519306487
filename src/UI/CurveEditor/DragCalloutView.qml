import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// The exact values of the point that is dragged, pointed at, or worked on by keyboard.
CalloutBubble {
    id: root

    required property curveCallout callout

    anchorPoint: callout.position
    distance: 20
    text: callout.text
    visible: opacity > 0
    opacity: callout.isShown ? 1 : 0

    Behavior on opacity { NumberAnimation { duration: 110 } }
}
