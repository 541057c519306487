import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// Whose curve is shown, and the way back from an edit.
Item {
    id: root

    required property CurvesModel model

    implicitHeight: picker.implicitHeight

    Label {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        text: qsTrId("curves.selector.editing")
        color: AppColors.secondaryText
    }

    PresetMenuButton {
        id: picker

        anchors.left: label.right
        anchors.leftMargin: Spacing.small
        width: Math.min(implicitWidth, root.width - label.width - history.width - 3 * Spacing.small)
        model: root.model
    }

    Row {
        id: history

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.model.isBuiltIn
        spacing: Spacing.hair

        IconButton {
            text: qsTrId("curves.undo")
            toolTip: root.model.undoHelp
            symbolName: "arrow.uturn.backward"
            enabled: root.model.canUndo
            onClicked: root.model.undo()
        }

        IconButton {
            text: qsTrId("curves.redo")
            toolTip: root.model.redoHelp
            symbolName: "arrow.uturn.forward"
            enabled: root.model.canRedo
            onClicked: root.model.redo()
        }
    }
}
