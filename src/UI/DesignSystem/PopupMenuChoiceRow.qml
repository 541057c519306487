import QtQuick
import Kestrowind.DesignSystem

// One choice of a list; its owner answers chosen() by setting the row.
PopupMenuChoice {
    required property choice row

    signal chosen(string identifier)

    text: row.title
    symbolName: row.symbolName
    isChosen: row.isChosen
    onTriggered: chosen(row.identifier)
}
