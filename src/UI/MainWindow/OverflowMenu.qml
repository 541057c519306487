import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// The slots that have no pill, behind three dots.
MenuButton {
    id: root

    required property RowList model
    required property bool containsActive
    readonly property int count: model.count

    signal chosen(string slotID)

    text: qsTrId("mainWindow.presetBar.morePresets")
    focusPolicy: Qt.TabFocus
    onEnabledChanged: if (!enabled) menu.close()

    background: PillSurface {
        isTinted: root.containsActive
        isLifted: root.hovered && root.enabled && !root.menu.visible
        isPressed: root.down || root.menu.visible
        isFocused: root.visualFocus
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: "ellipsis"
            size: 18
            color: root.containsActive || root.hovered ? AppColors.primaryText : AppColors.secondaryText
        }
    }

    // As wide as the longest name: here names are never shortened.
    menu: PopupMenu {
        id: popup

        title: root.text

        // The menu knows its items by their place in it, which a Repeater does not tell.
        Instantiator {
            model: root.model
            delegate: PopupMenuChoiceRow {
                // The active one among them makes room for its tick in all.
                checkable: root.containsActive
                onChosen: slotID => root.chosen(slotID)
            }
            onObjectAdded: (index, object) => popup.insertItem(index, object as Item)
            onObjectRemoved: index => popup.takeItem(index)
        }
    }

    Tooltip { text: root.text; shown: root.hovered && !root.menu.visible; gap: 36 }
}
