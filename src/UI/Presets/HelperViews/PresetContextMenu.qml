import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// What can be done with a preset; only the user's own can be renamed and deleted. A command runs when
// the menu is gone, so that a dialog does not compete with it for the keyboard.
PopupMenu {
    id: root

    required property PresetsModel screen
    property presetCard row

    function show(card: Item, preset: presetCard, at: point): void {
        row = preset
        openAt(card, at)
    }

    title: qsTrId("presets.card.menuButton").arg(row.name)

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.activate")
        symbolName: "checkmark"
        onTriggered: Qt.callLater(() => root.screen.activate(root.row.slotID)) // qmllint disable
    }

    PopupMenuSeparator {}

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.duplicate")
        symbolName: "plus.square.on.square"
        enabled: root.screen.canAddPreset
        onTriggered: Qt.callLater(() => root.screen.duplicate(root.row.slotID)) // qmllint disable
    }

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.rename")
        symbolName: "pencil"
        visible: root.row.isEditable
        enabled: visible
        height: visible ? implicitHeight : 0
        onTriggered: Qt.callLater(() => root.screen.rename(root.row.slotID)) // qmllint disable
    }

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.export")
        symbolName: "square.and.arrow.up"
        onTriggered: Qt.callLater(() => root.screen.exchange.exportPreset(root.row.slotID)) // qmllint disable
    }

    PopupMenuSeparator {
        visible: root.row.isEditable
        height: visible ? implicitHeight : 0
    }

    PopupMenuItem {
        text: qsTrId("presets.contextMenu.delete")
        symbolName: "trash"
        destructive: true
        visible: root.row.isEditable
        enabled: visible
        height: visible ? implicitHeight : 0
        onTriggered: Qt.callLater(() => root.screen.requestDeletion(root.row.slotID)) // qmllint disable
    }
}
