import QtQuick
import Kestrowind.DesignSystem

// Stands in the controls' place until they can be used.
Row {
    id: root

    required property bool shown

    spacing: 9
    opacity: shown ? 1 : 0
    visible: opacity > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: text.text

    Behavior on opacity { NumberAnimation { duration: 180 } }

    SpinningFanIndicator {
        anchors.verticalCenter: parent.verticalCenter
        diameter: 20
        revolutionsPerSecond: 0.8
    }

    Label {
        id: text

        anchors.verticalCenter: parent.verticalCenter
        text: qsTrId("shared.mode.startingBoost")
        font: Typography.subheadline
    }
}
