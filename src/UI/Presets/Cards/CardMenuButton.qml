import QtQuick
import Kestrowind.DesignSystem

// The way to a card's menu without a second mouse button. Seen while the pointer or the keyboard is at
// the card; assistive technology finds it at any time.
IconButton {
    id: root

    required property string cardName
    required property bool shown

    width: 24
    height: 20
    padding: 0
    symbolName: "ellipsis"
    text: qsTrId("presets.card.menuButton").arg(cardName)
    toolTip: "" // it would lie under the menu
    color: shown ? AppColors.secondaryText : "transparent"
    focusPolicy: Qt.NoFocus
}
