import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// One Tab stop for all chips; the arrow keys go from chip to chip.
Column {
    id: root

    required property MenuBarModel model
    property int currentIndex: Math.max(0, model.activePresetIndex)

    function moveTo(index: int): void {
        const chip = chips.itemAt(index)
        if (chip === null)
            return
        chip.forceActiveFocus(Qt.TabFocusReason)
        currentIndex = index
    }

    spacing: Spacing.small

    Item {
        width: parent.width
        height: Math.max(caption.height, warning.height)

        MenuBarCaption {
            id: caption

            anchors.verticalCenter: parent.verticalCenter
            text: qsTrId("menuBar.preset.caption")
        }

        SymbolLabel {
            id: warning

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: root.model.isControlUnavailable
            spacing: 4
            symbolName: "exclamationmark.triangle.fill"
            text: qsTrId("shared.mode.controlUnavailable")
            font: Typography.weighted(Typography.caption, Font.Medium)
            color: AppColors.warning
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Flow {
        width: parent.width
        spacing: 6
        Accessible.role: Accessible.Grouping
        Accessible.name: caption.text

        Repeater {
            id: chips

            model: root.model.presets

            MenuBarPresetChip {
                required property int index

                maximumWidth: root.width
                focusPolicy: activeFocus || index === root.currentIndex ? Qt.StrongFocus
                                                                     : Qt.ClickFocus
                onClicked: {
                    root.currentIndex = index
                    root.model.activate(row.identifier)
                }
                Keys.onLeftPressed: root.moveTo(index - 1)
                Keys.onUpPressed: root.moveTo(index - 1)
                Keys.onRightPressed: root.moveTo(index + 1)
                Keys.onDownPressed: root.moveTo(index + 1)
            }
        }
    }
}
