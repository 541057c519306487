import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The last half hour as two charts.
Card {
    id: root

    required property DashboardModel model

    Column {
        width: parent.width
        spacing: Spacing.regular

        Item {
            width: parent.width
            height: title.height

            Heading {
                id: title

                text: qsTrId("dashboard.history.title")
                font: Typography.title3
            }

            TabularText {
                anchors.right: save.visible ? save.left : parent.right
                anchors.rightMargin: save.visible ? Spacing.tight : 0
                anchors.baseline: title.baseline
                text: root.model.windowCaption
                font: Typography.subheadline
                color: AppColors.secondaryText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            IconButton {
                id: save

                visible: root.model.hasHistory
                anchors.right: parent.right
                anchors.rightMargin: -padding
                anchors.verticalCenter: title.verticalCenter
                symbolName: "square.and.arrow.down"
                text: qsTrId("dashboard.history.save.button")
                onClicked: root.model.historyExport.save()
            }
        }

        Loader {
            active: root.model.hasHistory
            visible: active
            width: parent.width
            sourceComponent: Column {
                spacing: Spacing.regular

                TemperatureHistoryChart {
                    width: parent.width
                    chart: root.model.temperatures
                }

                Separator { width: parent.width }

                FanSpeedHistoryChart {
                    width: parent.width
                    chart: root.model.fanSpeeds
                    fans: root.model.fans
                }
            }
        }

        HistoryPlaceholder {
            visible: !root.model.hasHistory
            width: parent.width
        }
    }
}
