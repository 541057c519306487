import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// The presets and the boost; while the helper takes the fans over, that it does.
Item {
    id: root

    required property MenuBarModel model

    implicitHeight: controls.height

    Column {
        id: controls

        width: parent.width
        spacing: 16
        enabled: !root.model.isTakingControl
        opacity: enabled ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: 180 } }

        MenuBarPresetPicker { width: parent.width; model: root.model }
        MenuBarBoost { width: parent.width; model: root.model }
    }

    MenuBarTakingControl {
        anchors.centerIn: parent
        shown: root.model.isTakingControl
    }
}
