import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// How to draw, and what no curve can do.
Column {
    id: root

    spacing: Spacing.small

    HintLabel {
        width: parent.width
        symbolName: "hand.draw"
        text: qsTrId("curves.hint.howToEdit")
    }

    HintLabel {
        width: parent.width
        symbolName: "checkmark.shield.fill"
        text: qsTrId("curves.caption.safety")
    }
}
