import QtQuick
import Kestrowind.DesignSystem

// All texts of a PopUpPicker, one over the other: as wide as the widest, whichever is current.
Item {
    id: root

    required property int currentIndex
    property alias model: texts.model

    implicitWidth: texts.widest

    Repeater {
        id: texts

        property real widest: 0

        onItemAdded: (index, item) => widest = Math.max(widest, item.implicitWidth)

        delegate: Label {
            required property int index
            required property string modelData

            y: parent ? Math.round((parent.height - height) / 2) : 0
            text: modelData
            // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
            // qmllint disable unqualified
            opacity: index === root.currentIndex ? 1 : 0
            // qmllint enable unqualified
        }
    }
}
