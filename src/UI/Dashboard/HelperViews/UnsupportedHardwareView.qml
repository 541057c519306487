import QtQuick
import Kestrowind.DesignSystem

// A machine without fans, or one that tells nothing of them.
Item {
    id: root

    Accessible.role: Accessible.StaticText
    Accessible.name: title.text
    Accessible.description: message.text

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Spacing.section, 380)
        spacing: Spacing.small

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "fanblades.slash"
            size: 44
            color: AppColors.secondaryText
        }

        Item { width: 1; height: Spacing.tight }

        Text {
            id: title

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("dashboard.unsupported.title")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.title3
            color: AppColors.primaryText
            Accessible.ignored: true
        }

        Text {
            id: message

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("dashboard.unsupported.message")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.body
            lineHeight: 1.15
            color: AppColors.secondaryText
            Accessible.ignored: true
        }
    }
}
