import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

Column {
    id: root

    required property MenuBarModel model

    spacing: Spacing.small

    Separator { width: parent.width }

    Column {
        width: parent.width

        MenuBarFooterButton {
            width: parent.width
            text: qsTrId("menuBar.openApplicationButton")
            symbolName: "macwindow"
            tint: AppColors.accent
            onClicked: root.model.openMainWindow()
        }

        MenuBarFooterButton {
            width: parent.width
            text: qsTrId("menuBar.quitButton")
            symbolName: "power"
            tint: AppColors.secondaryText
            toolTip: qsTrId("menuBar.quitButton.help")
            onClicked: root.model.quit()
        }
    }
}
