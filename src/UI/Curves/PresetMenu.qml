import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// The user's presets, the built-in ones, and a new one.
PopupMenu {
    id: root

    required property CurvesModel model

    minimumWidth: 200
    maximumWidth: 420

    PopupMenuHeading {
        text: qsTrId("curves.toolbar.yourPresetsSection")
        visible: userRows.count > 0
        height: visible ? implicitHeight : 0
    }

    // The menu knows its items by their place in it, which a Repeater does not tell when rows come.
    Instantiator {
        id: userRows

        model: root.model.userPresets
        delegate: PopupMenuChoiceRow { onChosen: slotID => root.model.select(slotID) }
        onObjectAdded: (index, object) => root.insertItem(1 + index, object as Item)
        onObjectRemoved: index => root.takeItem(1 + index)
    }

    PopupMenuHeading { text: qsTrId("curves.toolbar.builtInSection") }

    // Always the same ones, before the separator and the last item.
    Instantiator {
        model: root.model.builtInPresets
        delegate: PopupMenuChoiceRow { onChosen: slotID => root.model.select(slotID) }
        onObjectAdded: (index, object) => root.insertItem(root.count - 2, object as Item)
    }

    PopupMenuSeparator {}

    PopupMenuItem {
        text: qsTrId("curves.toolbar.newPreset")
        hasTickColumn: true
        symbolName: "plus"
        enabled: root.model.canAddPreset
        onTriggered: root.model.createPreset()
    }
}
