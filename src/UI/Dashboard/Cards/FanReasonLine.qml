import QtQuick
import Kestrowind.DesignSystem

// Why a fan runs as it does, in a line; a click tells how that came about.
ActionButton {
    id: root

    required property string explanation

    implicitWidth: sentence.implicitWidth
    implicitHeight: sentence.implicitHeight
    Accessible.description: explanation
    onClicked: popover.open()

    contentItem: Label {
        id: sentence

        text: root.text
        font: Typography.caption
        color: root.hovered || root.down || popover.visible ? AppColors.primaryText : AppColors.secondaryText
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
    }

    FocusRing { shown: root.visualFocus }

    Popover {
        id: popover

        text: root.explanation
    }
}
