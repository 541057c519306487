import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem
import Kestrowind.Curves

// The displayed preset; the menu below it has all of them and makes new ones.
T.Button {
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
    hoverEnabled: true
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: qsTrId("curves.toolbar.presetPickerLabel")
    Accessible.description: text
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
    Keys.onDownPressed: root.clicked()
    onClicked: menu.opened ? menu.close() : menu.popup(root, 0, root.height + Spacing.tight)

    background: ControlBackground {
        prominent: false
        hovered: root.hovered
        pressed: root.down || menu.visible

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

    PresetMenu {
        id: menu

        model: root.model
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    }
}
