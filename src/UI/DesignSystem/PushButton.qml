import QtQuick
import Kestrowind.DesignSystem

// Prominent is the one that a screen wants to be pressed; destructive what cannot be undone.
ActionButton {
    id: root

    property bool prominent: false
    property bool destructive: false
    property string symbolName
    property string toolTip

    font: prominent ? Typography.weighted(Typography.body, Font.Medium) : Typography.body
    leftPadding: 14
    rightPadding: 14
    topPadding: 4
    bottomPadding: 4
    implicitWidth: Math.max(64, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(28, implicitContentHeight + topPadding + bottomPadding)
    opacity: enabled ? 1 : 0.45
    Accessible.description: toolTip

    background: ControlBackground {
        prominent: root.prominent
        destructive: root.destructive
        hovered: root.hovered
        pressed: root.down

        FocusRing { shown: root.visualFocus }
    }

    contentItem: SymbolLabel {
        centered: true
        text: root.text
        symbolName: root.symbolName
        font: root.font
        color: root.prominent ? (root.destructive ? AppColors.onDanger : AppColors.onAccent)
             : root.destructive ? AppColors.danger : AppColors.primaryText
    }

    Tooltip { text: root.toolTip; shown: root.hovered }
}
