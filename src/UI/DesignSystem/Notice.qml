import QtQuick
import Kestrowind.DesignSystem

// A symbol at the first line of what there is to say.
Item {
    id: root

    required property string symbolName
    required property string text
    property color color: AppColors.primaryText
    property color symbolColor: color
    property alias font: message.font
    property real leftPadding: 0
    readonly property alias textHeight: message.height

    readonly property real symbolSize: 16

    implicitHeight: Math.max(symbolSize, textHeight)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Symbol {
        x: root.leftPadding
        y: Math.max(0, Math.round((firstLine.height - height) / 2))
        name: root.symbolName
        size: root.symbolSize
        color: root.symbolColor
    }

    FontMetrics {
        id: firstLine

        font: message.font
    }

    Label {
        id: message

        x: root.leftPadding + root.symbolSize + Spacing.small
        width: root.width - x
        text: root.text
        wrapMode: Text.Wrap
        font: Typography.caption
        color: root.color
    }
}
