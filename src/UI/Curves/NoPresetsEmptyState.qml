import QtQuick
import Kestrowind.DesignSystem

// There is no preset whose curve could be shown.
Item {
    id: root

    signal createRequested()

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Spacing.section, 380)
        spacing: Spacing.small

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "chart.xyaxis.line"
            size: 44
            color: AppColors.tertiaryText
        }

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("curves.emptyState.title")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.title3
            color: AppColors.primaryText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("curves.emptyState.description")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.body
            lineHeight: 1.15
            color: AppColors.secondaryText
        }

        Item { width: 1; height: Spacing.tight }

        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTrId("curves.emptyState.createPreset")
            symbolName: "plus"
            prominent: true
            onClicked: root.createRequested()
        }
    }
}
