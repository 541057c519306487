import QtQuick
import Kestrowind.DesignSystem

GalleryCard {
    title: "Symbols"

    Flow {
        anchors.fill: parent
        spacing: Spacing.medium

        Repeater {
            model: ["fanblades", "no.such.symbol"].concat(SymbolGlyphs.names)

            Symbol {
                required property string modelData

                name: modelData
                size: 24
            }
        }
    }
}
