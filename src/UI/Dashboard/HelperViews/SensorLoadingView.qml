import QtQuick
import Kestrowind.DesignSystem

// Before the first sample.
Item {
    id: root

    Accessible.role: Accessible.StaticText
    Accessible.name: title.text
    Accessible.description: subtitle.text

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Spacing.section, 360)
        spacing: Spacing.small

        SpinningFanMark {
            anchors.horizontalCenter: parent.horizontalCenter
            diameter: 44
        }

        Item { width: 1; height: Spacing.tight }

        Text {
            id: title

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("dashboard.loading.title")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.title3
            color: AppColors.primaryText
            Accessible.ignored: true
        }

        Text {
            id: subtitle

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("dashboard.loading.subtitle")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.body
            color: AppColors.secondaryText
            Accessible.ignored: true
        }
    }
}
