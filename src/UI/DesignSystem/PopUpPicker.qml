import QtQuick
import Kestrowind.DesignSystem

// One of a few texts (the model, a list), behind a button that shows the current one. The owner
// answers activated(index) by setting currentIndex.
MenuButton {
    id: root

    required property string label
    required property list<string> model
    property int currentIndex: 0

    signal activated(int index)

    text: model[currentIndex] ?? ""
    leftPadding: 12
    rightPadding: 28
    topPadding: 4
    bottomPadding: 4
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(28, implicitContentHeight + topPadding + bottomPadding)
    opacity: enabled ? 1 : 0.45
    Accessible.name: label
    Accessible.description: text

    background: ControlBackground {
        prominent: false
        hovered: root.hovered
        pressed: root.down || root.menu.visible

        FocusRing { shown: root.visualFocus }
    }

    contentItem: PopUpPickerText {
        model: root.model
        currentIndex: root.currentIndex
    }

    indicator: Symbol {
        x: root.width - width - 8
        y: Math.round((root.height - height) / 2)
        name: "chevron.up.chevron.down"
        size: 14
        color: AppColors.secondaryText
    }

    menu: PopupMenu {
        title: root.label
        minimumWidth: root.width

        Repeater {
            model: root.model
            delegate: PopupMenuChoice {
                required property int index
                required property string modelData

                text: modelData
                isChosen: index === root.currentIndex
                onTriggered: root.activated(index)
            }
        }
    }
}
