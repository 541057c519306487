import QtQuick
import Kestrowind.DesignSystem

// A heading above a card of rows.
Item {
    id: root

    required property string title
    default property alias rows: stack.data

    readonly property real margin: Spacing.small

    implicitHeight: card.y + card.height + margin
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Heading {
        id: heading

        x: root.margin + Spacing.tight
        y: root.margin
        width: root.width - 2 * x
        text: root.title
    }

    Card {
        id: card

        x: root.margin
        y: heading.y + heading.height + Spacing.small
        width: root.width - 2 * root.margin
        height: implicitHeight
        padding: 0
        cornerRadius: Radius.banner

        Column {
            id: stack

            width: parent.width
        }
    }
}
