import QtQuick
import Kestrowind.DesignSystem

// In the controls' place while nothing can be controlled.
Rectangle {
    id: root

    signal settingsRequested()

    implicitHeight: content.height + 2 * Spacing.medium
    radius: 10
    color: "transparent"
    border.width: 1
    border.color: Qt.alpha(AppColors.tertiaryText, 0.5)

    Column {
        id: content

        x: Spacing.medium
        y: Spacing.medium
        width: parent.width - 2 * x
        spacing: Spacing.small

        SymbolLabel {
            width: parent.width
            symbolName: "wrench.and.screwdriver"
            text: qsTrId("menuBar.helperMissing.title")
            font: Typography.weighted(Typography.subheadline, Font.DemiBold)
            symbolColor: AppColors.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Label {
            width: parent.width
            text: qsTrId("menuBar.helperMissing.body")
            font: Typography.caption
            color: AppColors.secondaryText
            wrapMode: Text.Wrap
            lineHeight: 1.15
        }

        PushButton {
            text: qsTrId("menuBar.openSettingsButton")
            font: Typography.caption
            implicitHeight: 24
            leftPadding: 10
            rightPadding: 10
            onClicked: root.settingsRequested()
        }
    }
}
