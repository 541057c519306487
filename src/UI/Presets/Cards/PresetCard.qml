import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// One slot: a click activates it, it can be dragged onto another, and its menu has the rest.
ChoiceButton {
    id: root

    required property int index
    required property presetCard row
    required property PresetsModel screen
    // Not where the keyboard is, but whether it is being used.
    property bool isKeyboardInUse: false
    property bool isMenuOpen: false

    // Grows to 1 as the card enters the grid.
    property real entrance: 1
    property real lift: isLifted ? 1.02 : 1
    readonly property bool isPointedAt: hovered || menuButton.hovered
    readonly property bool isLifted: isPointedAt && !drag.isDragging

    signal contextMenuRequested(point at)
    signal keyboardUsed()

    // The button does not always hear that a drag took its press.
    property bool wasDragged: false

    down: pressed && !wasDragged
    onPressed: wasDragged = false

    function beginDrag(at: point): void {
        wasDragged = true
        drag.start(root, Radius.card, row.slotID, at)
    }

    function requestMenu(at: point): void {
        if (!row.isAutomatic)
            contextMenuRequested(at)
    }

    text: row.name
    scale: entrance * lift
    opacity: 1
    z: isPointedAt ? 1 : 0
    focusPolicy: Qt.ClickFocus
    isChosen: row.isActive
    // With its place, which is how a move by the keyboard is heard.
    Accessible.description: qsTrId("presets.card.spokenCaption").arg(row.caption).arg(index + 1)
                                                                .arg(GridView.view?.count ?? 0)
    Accessible.focusable: true
    onActiveFocusChanged: if (activeFocus) GridView.view.currentIndex = index
    onVisualFocusChanged: if (visualFocus) keyboardUsed()
    Keys.onPressed: event => {
        keyboardUsed()
        event.accepted = keys.handle(event.key, event.modifiers)
    }

    onClicked: screen.activate(row.slotID)

    GridView.onAdd: {
        opacity = 0
        entrance = 0.92
    }

    Behavior on lift { SpringMotion { timing: Springs.hover } }

    CardKeys {
        id: keys

        onMenuRequested: root.requestMenu(Qt.point(root.width / 2, root.height / 2))
        onRenameRequested: root.screen.rename(root.row.slotID)
        onDeletionRequested: root.screen.requestDeletion(root.row.slotID)
        onMoveRequested: (columns, rows) => root.screen.moveBy(root.index, columns + rows * root.screen.columns)
    }

    background: PresetCardChrome {
        isActive: root.row.isActive
        isLifted: root.isLifted
        isPressed: root.down
        isFocused: root.activeFocus && root.isKeyboardInUse
        isTarget: dropArea.containsDrag && !drag.isDragging

        // Here, for a button with handlers of its own takes every mouse button for its click.
        DragHandler {
            target: null
            acceptedButtons: Qt.LeftButton
            onActiveChanged: if (active)
                root.beginDrag(centroid.pressPosition)
        }

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: eventPoint => root.requestMenu(eventPoint.position)
        }
    }

    // qmllint disable deferred-property-id
    contentItem: PresetCardLayout {
        // qmllint enable deferred-property-id
        id: layout

        opacity: drag.isDragging ? 0.35 : 1
        row: root.row
    }

    DropArea {
        id: dropArea

        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.hasText
        onDropped: drop => drop.accepted = root.screen.drop(drop.text, root.row.slotID)
    }

    CardDrag { id: drag }

    CardMenuButton {
        id: menuButton

        anchors { right: parent.right; rightMargin: Spacing.medium }
        y: 66
        visible: !root.row.isAutomatic
        cardName: root.row.name
        shown: root.isLifted || (root.activeFocus && root.isKeyboardInUse)
        onClicked: root.requestMenu(Qt.point(x, y + height))
    }

    Tooltip {
        text: root.row.help.length > 0 ? root.row.help : layout.isNameTruncated ? root.row.name : ""
        shown: root.hovered && !drag.isDragging && !root.isMenuOpen
    }
}
