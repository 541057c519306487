import QtQuick
import Kestrowind.DesignSystem

// An optional symbol before a text, as buttons, menu items and hints show it.
Item {
    id: root

    property string symbolName
    property string text
    property font font: Typography.body
    property color color: AppColors.primaryText
    property color symbolColor: color
    property real symbolSize: Math.round(font.pixelSize * 1.3)
    // Of the column that it stands in the middle of.
    property real symbolWidth: symbolSize
    property real spacing: 6

    property bool centered: false

    readonly property bool hasSymbol: symbolName.length > 0
    readonly property real textLeft: hasSymbol ? symbolWidth + (text.length > 0 ? spacing : 0) : 0

    implicitWidth: textLeft + label.implicitWidth
    implicitHeight: Math.max(label.implicitHeight, hasSymbol ? symbolSize : 0)

    Item {
        anchors.horizontalCenter: root.centered ? parent.horizontalCenter : undefined
        width: label.x + label.width
        height: parent.height

        Symbol {
            visible: root.hasSymbol
            x: Math.round((root.symbolWidth - width) / 2)
            y: Math.round((root.height - height) / 2)
            name: root.symbolName
            size: root.symbolSize
            color: root.symbolColor
        }

        Label {
            id: label

            x: root.textLeft
            y: Math.round((root.height - height) / 2)
            width: Math.min(implicitWidth, root.width - root.textLeft)
            text: root.text
            font: root.font
            color: root.color
            elide: Text.ElideRight
        }
    }
}
