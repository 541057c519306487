import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// The displayed preset; the menu below it has all of them and makes new ones.
PickerButton {
    id: root

    required property CurvesModel model

    text: model.presetName
    font: Typography.weighted(Typography.body, Font.Medium)
    symbolSize: 16
    rightPadding: 32
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 30
    Accessible.name: menu.title

    contentItem: SymbolLabel {
        text: root.text
        symbolName: root.model.presetSymbolName
        font: root.font
        spacing: Spacing.small
    }

    menu: PresetMenu {
        title: qsTrId("curves.toolbar.presetPickerLabel")
        model: root.model
    }
}
