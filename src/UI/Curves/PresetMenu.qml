import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// The user's presets, the built-in ones, and a new one.
PopupMenu {
    id: root

    required property CurvesModel model

    // As wide as its widest name, within bounds.
    onAboutToShow: {
        let widest = 200
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth)
        width = Math.min(widest, 420) + leftPadding + rightPadding
    }

    PopupMenuHeading {
        text: qsTrId("curves.toolbar.yourPresetsSection")
        visible: userRows.count > 0
        height: visible ? implicitHeight : 0
    }

    Repeater {
        id: userRows

        model: root.model.userPresets
        delegate: PresetMenuItem { onChosen: root.model.selectUserPreset(index) }
    }

    PopupMenuHeading { text: qsTrId("curves.toolbar.builtInSection") }

    Repeater {
        model: root.model.builtInPresets
        delegate: PresetMenuItem { onChosen: root.model.selectBuiltInPreset(index) }
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
