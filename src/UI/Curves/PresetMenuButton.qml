import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// The displayed preset; the menu below it has all of them and makes new ones.
MenuButton {
    id: root

    required property CurvesModel model

    text: model.presetName
    font: Typography.weighted(Typography.body, Font.Medium)
    leftPadding: 12
    rightPadding: 32
    topPadding: 4
    bottomPadding: 4
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 30
    Accessible.name: qsTrId("curves.toolbar.presetPickerLabel")
    Accessible.description: text

    background: ControlBackground {
        prominent: false
        hovered: root.hovered
        pressed: root.down || root.menu.visible

        FocusRing { shown: root.visualFocus }
    }

    contentItem: SymbolLabel {
        text: root.text
        symbolName: root.model.presetSymbolName
        font: root.font
        spacing: Spacing.small
    }

    indicator: Symbol {
        x: root.width - width - Spacing.small
        y: Math.round((root.height - height) / 2)
        name: "chevron.up.chevron.down"
        size: 16
        color: AppColors.secondaryText
    }

    menu: PresetMenu {
        title: qsTrId("curves.toolbar.presetPickerLabel")
        model: root.model
    }
}
