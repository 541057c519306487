import QtQuick
import Kestrowind.DesignSystem

// A symbol by its platform name, in a square frame.
Item {
    id: root

    required property string name
    property real size: 16
    property color color: AppColors.primaryText
    readonly property bool isFan: SymbolGlyphs.isFan(name)

    implicitWidth: size
    implicitHeight: size

    Text {
        visible: !root.isFan
        anchors.centerIn: parent
        width: root.size
        height: root.size
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: root.isFan || root.name.length === 0 ? "" : SymbolGlyphs.glyph(root.name)
        textFormat: Text.PlainText
        font.family: SymbolGlyphs.fontFamily
        font.pixelSize: Math.max(1, Math.round(root.size))
        color: root.color
    }

    FanGlyph {
        visible: root.isFan
        anchors.centerIn: parent
        side: root.size
        color: root.color
    }
}
