import QtQuick
import Kestrowind.DesignSystem

// In place of the charts until two samples make a line.
Item {
    id: root

    implicitHeight: 200
    Accessible.role: Accessible.StaticText
    Accessible.name: title.text
    Accessible.description: subtitle.text

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: Spacing.tight

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "chart.xyaxis.line"
            size: 32
            color: AppColors.tertiaryText
        }

        Text {
            id: title

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("dashboard.history.collectingTitle")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.headline
            color: AppColors.primaryText
            Accessible.ignored: true
        }

        Text {
            id: subtitle

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("dashboard.history.collectingSubtitle")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.body
            color: AppColors.secondaryText
            Accessible.ignored: true
        }
    }
}
