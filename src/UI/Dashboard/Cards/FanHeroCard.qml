import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The fans side by side.
DashboardCard {
    id: root

    required property FanGaugeRows fans

    padding: Spacing.large

    Column {
        width: parent.width
        spacing: Spacing.regular

        Text {
            text: qsTrId("dashboard.fans.title")
            textFormat: Text.PlainText
            font: Typography.title
            color: AppColors.primaryText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Flow {
            id: gauges

            readonly property int perLine: Math.max(1, Math.floor((parent.width + spacing) / (110 + spacing)))
            readonly property int inLine: Math.min(perLine, repeater.count)

            anchors.horizontalCenter: parent.horizontalCenter
            width: inLine * 110 + Math.max(0, inLine - 1) * spacing
            spacing: 64

            Repeater {
                id: repeater

                model: root.fans
                delegate: FanGaugeView { showsName: root.fans.hasSeveral }
            }
        }

        SymbolLabel {
            visible: root.fans.hasSeveral
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, parent.width)
            text: qsTrId("dashboard.fans.differentSpeedsNote")
            symbolName: "info.circle"
            font: Typography.caption
            color: AppColors.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
