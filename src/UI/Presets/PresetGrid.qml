import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// One Tab stop for all the cards, where the arrow keys go from one to the next, and one for the
// card that makes another.
Item {
    id: root

    required property PresetsModel model
    readonly property real cardHeight: 188
    readonly property int rows: Math.ceil((cards.count + 1) / model.columns)

    function focusCard(row: int): void {
        cards.currentIndex = row
        cards.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: rows * (cardHeight + model.spacing) - model.spacing

    Binding { target: root.model; property: "availableWidth"; value: root.width }

    GridView {
        id: cards

        // Since the pointer last pressed a card.
        property bool isKeyboardInUse: false

        width: root.model.columns * cellWidth
        height: root.rows * cellHeight
        cellWidth: root.model.columnWidth + root.model.spacing
        cellHeight: root.cardHeight + root.model.spacing
        interactive: false
        cacheBuffer: 4000
        model: root.model.cards
        keyNavigationEnabled: true
        activeFocusOnTab: true
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTrId("mainWindow.section.presets")
        Component.onCompleted: currentIndex = root.model.activeRow
        Keys.onRightPressed: event => {
            event.accepted = currentIndex === count - 1 && newCard.canCreate
            if (event.accepted)
                newCard.forceActiveFocus(Qt.TabFocusReason)
        }

        delegate: PresetCard {
            // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
            // qmllint disable unqualified
            width: root.model.columnWidth
            height: root.cardHeight
            screen: root.model
            isKeyboardInUse: cards.isKeyboardInUse
            isMenuOpen: menu.visible && menu.row.slotID === row.slotID
            onPressed: cards.isKeyboardInUse = false
            onKeyboardUsed: cards.isKeyboardInUse = true
            onContextMenuRequested: at => menu.show(this, row, at)
            // qmllint enable unqualified
        }

        add: CollectionMotion { appears: true; travels: false }
        remove: CollectionMotion { appears: false }
        move: CollectionMotion { appears: true }
        displaced: CollectionMotion { appears: true }
    }

    // The keyboard comes in at the active card, as long as it is not among the cards already.
    Connections {
        target: root.model

        function onActiveRowChanged(): void {
            if (!cards.activeFocus)
                cards.currentIndex = root.model.activeRow
        }
    }

    // Behind the last card.
    NewPresetCard {
        id: newCard

        x: cards.count % root.model.columns * cards.cellWidth
        y: (root.rows - 1) * cards.cellHeight
        width: root.model.columnWidth
        height: root.cardHeight
        canCreate: root.model.canAddPreset
        limitHelp: root.model.limitHelp
        onClicked: root.model.createPreset()
        onContextMenuRequested: at => newMenu.show(newCard, at)
        Keys.onLeftPressed: root.focusCard(cards.count - 1)
    }

    NewPresetMenu {
        id: newMenu

        screen: root.model
    }

    PresetContextMenu {
        id: menu

        screen: root.model
    }
}
