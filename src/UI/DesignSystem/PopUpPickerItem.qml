import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// One choice of a PopUpPicker; the current one bears a tick.
T.ItemDelegate {
    id: root

    required property bool isCurrent

    readonly property color textColor: highlighted ? AppColors.onAccent : AppColors.primaryText

    font: Typography.body
    leftPadding: 27
    rightPadding: 12
    topPadding: 4
    bottomPadding: 4
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    hoverEnabled: true
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: isCurrent

    background: Rectangle {
        radius: Radius.small
        color: AppColors.accentFill
        visible: root.highlighted
    }

    contentItem: SymbolLabel {
        text: root.text
        font: root.font
        color: root.textColor
    }

    Symbol {
        x: 7
        y: Math.round((root.height - height) / 2)
        visible: root.isCurrent
        name: "checkmark"
        size: 15
        color: root.textColor
    }
}
