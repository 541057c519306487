import QtQuick
import Kestrowind.DesignSystem

// A button without a border, in the accent colour.
ActionButton {
    id: root

    property string symbolName
    property color color: AppColors.accent

    font: Typography.body
    padding: 2
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: !enabled ? 0.45 : down ? 0.6 : 1

    background: FocusRing { anchors.fill: undefined; shown: root.visualFocus; gap: 0; cornerRadius: Radius.small }

    contentItem: SymbolLabel {
        text: root.text
        symbolName: root.symbolName
        font.family: root.font.family
        font.pixelSize: root.font.pixelSize
        font.weight: root.font.weight
        font.underline: root.hovered
        color: root.color
    }
}
