import QtQuick
import Kestrowind.DesignSystem

// A symbol alone; its text is what a screen reader says and the tooltip shows.
ActionButton {
    id: root

    required property string symbolName
    property real symbolSize: 18
    property color color: AppColors.secondaryText
    property string toolTip: text
    readonly property bool isLifted: enabled && (hovered || down)

    padding: 6
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: enabled ? 1 : 0.45

    background: Rectangle {
        radius: Radius.control
        color: root.down ? AppColors.pressedFill : AppColors.hoverFill
        opacity: 1
        visible: root.isLifted || root.visualFocus

        FocusRing { shown: root.visualFocus; gap: 0 }
    }

    contentItem: Item {
        implicitWidth: root.symbolSize
        implicitHeight: root.symbolSize

        Symbol {
            anchors.centerIn: parent
            name: root.symbolName
            size: root.symbolSize
            color: root.isLifted ? AppColors.primaryText : root.color
        }
    }

    Tooltip { text: root.toolTip; shown: root.hovered }
}
