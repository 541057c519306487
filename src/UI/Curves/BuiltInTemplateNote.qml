import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// Says why the curve cannot be edited, and offers a copy that can.
Banner {
    id: root

    required property CurvesModel model

    text: model.builtInNote

    PushButton {
        text: qsTrId("curves.customizeButton")
        prominent: true
        enabled: root.model.canAddPreset
        toolTip: root.model.customizeHelp
        onClicked: root.model.duplicateForEditing()
    }
}
