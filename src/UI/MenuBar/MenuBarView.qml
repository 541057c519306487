import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// The panel: readings, controls, and the way to the rest of the application.
Item {
    id: root

    required property MenuBarModel model
    // What the screen has room for; more than that scrolls.
    property real maximumHeight: 10000

    Accessible.role: Accessible.Dialog
    Accessible.name: qsTrId("menuBar.panel.title")
    Accessible.focusable: true

    width: 300
    height: Math.min(content.height + 36, maximumHeight)

    Shortcut { sequence: "Esc"; onActivated: root.model.dismiss() }
    Shortcut { sequence: "Ctrl+Q"; onActivated: root.model.quit() }

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: AppColors.panelBackground
    }

    // Above the fill: on its own it would let the desktop through, which is black without compositing.
    Rectangle {
        anchors.fill: parent
        radius: 12
        color: "transparent"
        border.width: 1
        border.color: AppColors.controlBorder
    }

    Flickable {
        anchors.fill: parent
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        contentHeight: content.height + 34
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: content

            x: 16
            y: 17
            width: root.width - 32
            spacing: 16

            MenuBarReadings { width: parent.width; model: root.model }
            Separator { width: parent.width }
            Loader {
                width: parent.width
                sourceComponent: root.model.isHelperInstalled ? controls : hint
            }
            MenuBarFooter { width: parent.width; model: root.model }
        }
    }

    Component {
        id: controls

        MenuBarControls { model: root.model }
    }

    Component {
        id: hint

        MenuBarHelperHint { onSettingsRequested: root.model.openMainWindow() }
    }
}
