import QtQuick
import Kestrowind.DesignSystem

// A soft shadow around its parent that comes and goes.
SoftShadow {
    id: root

    required property real strength
    property springTiming timing: Springs.hover

    anchors.fill: parent
    anchors.margins: -2 * blurRadius
    visible: opacity > 0
    opacity: strength

    Behavior on opacity { SpringMotion { timing: root.timing } }
}
