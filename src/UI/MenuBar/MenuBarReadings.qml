import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// Every fan and the two dies, or that the first sample is still to come.
Column {
    id: root

    required property MenuBarModel model

    spacing: 16

    Column {
        width: parent.width
        spacing: 10
        visible: !root.model.isWaiting

        Repeater {
            model: root.model.fans

            MenuBarFanRow { width: root.width }
        }
    }

    Column {
        width: parent.width
        spacing: 6
        visible: !root.model.isWaiting

        MenuBarTemperatureRow { width: parent.width; row: root.model.cpu }
        MenuBarTemperatureRow { width: parent.width; row: root.model.gpu }
    }

    Row {
        spacing: Spacing.small
        visible: root.model.isWaiting
        Accessible.role: Accessible.StaticText
        Accessible.name: waiting.text

        Spinner { anchors.verticalCenter: parent.verticalCenter; color: AppColors.secondaryText }

        Label {
            id: waiting

            anchors.verticalCenter: parent.verticalCenter
            text: qsTrId("menuBar.waitingForSensors")
            font: Typography.subheadline
            color: AppColors.secondaryText
        }
    }
}
