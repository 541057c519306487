import QtQuick
import Kestrowind.DesignSystem

// A command as wide as the panel; its highlight reaches beyond the text on both sides.
ActionButton {
    id: root

    required property string symbolName
    required property color tint
    property string toolTip

    topPadding: 6
    bottomPadding: 6
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    Accessible.description: toolTip

    background: Rectangle {
        x: -8
        width: root.width + 16
        height: root.height
        radius: Radius.control
        color: root.down ? AppColors.pressedFill
             : root.hovered ? AppColors.hoverFill : "transparent"

        FocusRing { shown: root.visualFocus; gap: -1 }
    }

    contentItem: SymbolLabel {
        text: root.text
        symbolName: root.symbolName
        symbolColor: root.tint
        font: Typography.weighted(Typography.subheadline, Font.Medium)
        symbolWidth: 20
        spacing: 8
    }

    // Beside the text: below there is no room, and above is another command. The pointer goes through.
    Tooltip {
        text: root.toolTip
        shown: root.hovered
        enabled: false
        widest: root.width - root.implicitContentWidth - Spacing.regular
        x: root.width - implicitWidth + 8
        y: Math.round((root.height - implicitHeight) / 2)
    }
}
