import QtQuick
import Kestrowind.DesignSystem

// Shows what is chosen and opens the menu to choose something else from.
MenuButton {
    id: root

    property real symbolSize: 14

    leftPadding: 12
    rightPadding: symbolSize + 14
    topPadding: 4
    bottomPadding: 4
    opacity: enabled ? 1 : 0.45
    Accessible.description: text

    background: ControlBackground {
        prominent: false
        hovered: root.hovered
        pressed: root.down || root.menu.visible

        FocusRing { shown: root.visualFocus }
    }

    indicator: Symbol {
        x: root.width - width - Spacing.small
        y: Math.round((root.height - height) / 2)
        name: "chevron.up.chevron.down"
        size: root.symbolSize
        color: AppColors.secondaryText
    }
}
