import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// One pill a slot, as many as have room, and the menu of the others.
FocusScope {
    id: root

    required property PresetPillsModel model

    // The row grows and shrinks about its middle, which follows the window at once.
    property real rowWidth: model.rowWidth
    readonly property real rowLeft: Math.round((width - rowWidth) / 2)

    implicitHeight: pills.height + 2 * Spacing.tight
    enabled: model.isSwitchable

    Binding { target: root.model; property: "availableWidth"; value: root.width - 2 * Spacing.regular }

    Behavior on rowWidth {
        enabled: root.rowWidth > 0
        SpringMotion { timing: Springs.collection }
    }

    ListView {
        id: pills

        x: root.rowLeft
        y: Spacing.tight
        width: root.model.rowWidth
        height: 30
        orientation: ListView.Horizontal
        spacing: root.model.spacing
        interactive: false
        keyNavigationEnabled: true
        // One stop for Tab; the current pill has the focus, and the arrow keys change it.
        activeFocusOnTab: true
        cacheBuffer: 4000
        model: root.model.shown
        opacity: root.enabled ? 1 : 0.7
        // The keyboard comes in at the active pill.
        onActiveFocusChanged: if (activeFocus) currentIndex = root.model.activeRow
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTrId("mainWindow.presetBar.label")

        delegate: PresetPill {
            height: pills.height
            Accessible.description: root.model.hindrance
            onChosen: root.model.activate(row.slotID)
        }

        add: CollectionMotion { appears: true; travels: false }
        remove: CollectionMotion { appears: false; least: 0.85 }
        move: CollectionMotion { appears: true }
        displaced: CollectionMotion { appears: true }

        Behavior on opacity { NumberAnimation { duration: 150 } }
    }

    OverflowMenu {
        x: Math.round(root.rowLeft + root.rowWidth - width)
        y: pills.y
        width: root.model.overflowWidth
        height: pills.height
        model: root.model.overflow
        containsActive: root.model.isActiveInOverflow
        Accessible.description: root.model.hindrance
        opacity: root.enabled ? 1 : 0.7
        visible: count > 0
        onChosen: slotID => root.model.activate(slotID)
    }
}
