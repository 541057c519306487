import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// The frame of a card that is not there yet, of one colour.
CardOutline {
    anchors.fill: parent
    cornerRadius: Radius.card
    lineWidth: 1.5
    dashes: [6, 5]
    visible: opacity > 0
}
