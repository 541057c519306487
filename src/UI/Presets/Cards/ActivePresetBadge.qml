import QtQuick
import Kestrowind.DesignSystem

Rectangle {
    implicitWidth: label.implicitWidth + 20
    implicitHeight: label.implicitHeight + 10
    radius: height / 2
    color: AppColors.accentFill

    SymbolLabel {
        id: label

        anchors.centerIn: parent
        spacing: 4
        symbolName: "checkmark"
        text: qsTrId("presets.card.activeBadge")
        font: Typography.weighted(Typography.caption, Font.DemiBold)
        color: AppColors.onAccent
    }
}
