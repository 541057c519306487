import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// One processor's temperatures.
DashboardCard {
    id: root

    required property temperatureFacts facts
    required property color accentColor

    padding: Spacing.large
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

            Text {
                text: root.facts.title
                textFormat: Text.PlainText
                font: Typography.headline
                color: AppColors.primaryText
                Accessible.ignored: true
            }
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter

            TabularText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.facts.average
                font: Typography.heroNumber
                Accessible.ignored: true
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTrId("dashboard.temperature.averageLabel")
                textFormat: Text.PlainText
                font: Typography.caption
                color: AppColors.secondaryText
                Accessible.ignored: true
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
                Accessible.ignored: true
            }

            TabularText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.facts.sessionPeak
                font: Typography.caption
                color: AppColors.secondaryText
                Accessible.ignored: true
            }
        }
    }
}
