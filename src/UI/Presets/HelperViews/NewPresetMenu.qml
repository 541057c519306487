import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// The ways to another preset. A command runs when the menu is gone, so that a dialog does not compete
// with it for the keyboard.
PopupMenu {
    id: root

    required property PresetsModel screen

    title: qsTrId("presets.card.newPreset")

    function show(card: Item, at: point): void {
        openAt(card, at)
    }

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.new")
        symbolName: "plus"
        enabled: root.screen.canAddPreset
        onTriggered: Qt.callLater(() => root.screen.createPreset()) // qmllint disable
    }

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.import")
        symbolName: "square.and.arrow.down"
        enabled: root.screen.canAddPreset
        onTriggered: Qt.callLater(() => root.screen.exchange.importPreset()) // qmllint disable
    }
}
