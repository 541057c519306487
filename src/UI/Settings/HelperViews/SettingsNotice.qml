import QtQuick
import Kestrowind.DesignSystem

// A symbol and what there is to say, in small type.
Item {
    id: root

    required property string symbolName
    required property color symbolColor
    required property string text
    property color color: AppColors.primaryText

    readonly property real symbolSize: 16

    implicitHeight: Math.max(symbolSize, message.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Symbol {
        y: Math.max(0, Math.round((firstLine.height - height) / 2))
        name: root.symbolName
        size: root.symbolSize
        color: root.symbolColor
    }

    FontMetrics {
        id: firstLine

        font: message.font
    }

    Text {
        id: message

        x: root.symbolSize + Spacing.small
        width: root.width - x
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.caption
        color: root.color
        Accessible.ignored: true
    }
}
