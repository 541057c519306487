import QtQuick
import Kestrowind.Curves

// The curves screen: the editor, or what stands there when there is no preset at all. A window that
// is higher than needed gives its height to the chart.
Item {
    id: root

    required property CurvesModel model

    implicitWidth: 820
    implicitHeight: editor.active ? editor.implicitHeight : 420

    Component.onCompleted: model.setView(root)

    Loader {
        id: editor

        active: root.model.hasPreset
        anchors.fill: parent
        sourceComponent: EditorLayout { model: root.model }
    }

    Loader {
        active: !root.model.hasPreset
        anchors.fill: parent
        sourceComponent: NoPresetsEmptyState { onCreateRequested: root.model.createPreset() }
    }

    EditShortcuts { model: root.model }
}
