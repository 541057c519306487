import QtQuick
import Kestrowind.DesignSystem

// A card as high as what it holds.
Item {
    id: root

    property real padding: Spacing.large
    property alias cornerRadius: surface.cornerRadius
    default property alias content: body.data

    implicitHeight: body.implicitHeight + 2 * padding

    CardBackground {
        id: surface

        anchors.fill: parent
        cornerRadius: Radius.card
    }

    Item {
        id: body

        x: root.padding
        y: root.padding
        width: root.width - 2 * root.padding
        implicitHeight: childrenRect.height
    }
}
