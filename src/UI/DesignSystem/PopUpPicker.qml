import QtQuick
import Kestrowind.DesignSystem

// One of a few texts (the model, a list), behind a button that shows the current one. The owner
// answers activated(index) by setting currentIndex.
PickerButton {
    id: root

    required property string label
    required property list<string> model
    property int currentIndex: 0

    signal activated(int index)

    text: model[currentIndex] ?? ""
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(28, implicitContentHeight + topPadding + bottomPadding)
    Accessible.name: label

    contentItem: PopUpPickerText {
        model: root.model
        currentIndex: root.currentIndex
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
