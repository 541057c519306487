import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// One processor's temperatures.
Card {
    id: root

    required property temperatureFacts facts
    required property color accentColor

    Accessible.role: Accessible.StaticText
    Accessible.name: facts.spoken

    Column {
        width: parent.width
        spacing: Spacing.medium

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Spacing.small

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 8
                height: 8
                radius: 4
                color: root.accentColor
            }

            Label {
                text: root.facts.title
                font: Typography.headline
            }
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter

            TabularText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.facts.average
                font: Typography.heroNumber
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTrId("dashboard.temperature.averageLabel")
                font: Typography.caption
                color: AppColors.secondaryText
            }
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Spacing.tight

            TabularText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.facts.hottestCore
                font: Typography.body
                color: AppColors.primaryText
            }

            TabularText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.facts.sessionPeak
                font: Typography.caption
                color: AppColors.secondaryText
            }
        }
    }
}
