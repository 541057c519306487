import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// Switches to one slot's preset.
ChoiceButton {
    id: root

    required property presetPill row

    // Grows to 1 as the pill enters the row.
    property real entrance: 1
    property real lift: isLifted ? 1.06 : 1
    readonly property bool isLifted: hovered && enabled

    signal chosen()

    width: row.width
    scale: entrance * lift
    z: isLifted ? 1 : 0
    focusPolicy: Qt.NoFocus
    isChosen: row.isActive
    Accessible.name: row.fullName
    onClicked: chosen()

    Behavior on lift { SpringMotion { timing: Springs.hover } }

    ListView.onAdd: {
        opacity = 0
        entrance = 0.85
    }

    background: PillSurface {
        isTinted: root.row.isActive
        isLifted: root.isLifted
        isPressed: root.down
        isFocused: root.activeFocus
    }

    contentItem: Item {
        // Names may be written in letters of any height.
        clip: true

        SymbolLabel {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width)
            symbolName: root.row.symbolName
            text: root.row.title
            font: root.row.isActive ? Typography.weighted(Typography.callout, Font.DemiBold)
                                : Typography.callout
            color: root.row.isActive || root.isLifted ? AppColors.primaryText : AppColors.secondaryText
        }
    }

    // Below the caption, which it would else hide.
    Tooltip { text: root.row.fullName; shown: root.hovered; gap: 36 }
}
