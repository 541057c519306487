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

    Repeater {
        id: userRows

        model: root.model.userPresets
        delegate: PopupMenuChoiceRow { onChosen: slotID => root.model.select(slotID) }
    }

    PopupMenuHeading { text: qsTrId("curves.toolbar.builtInSection") }

    Repeater {
        model: root.model.builtInPresets
        delegate: PopupMenuChoiceRow { onChosen: slotID => root.model.select(slotID) }
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
