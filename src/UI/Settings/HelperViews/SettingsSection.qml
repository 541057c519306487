import QtQuick
import Kestrowind.DesignSystem

// A heading above a card of rows.
Item {
    id: root

    required property string title
    default property alias rows: stack.data

    readonly property real margin: Spacing.small

    implicitHeight: stack.y + stack.height + margin
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Text {
        id: heading

        x: root.margin + Spacing.tight
        y: root.margin
        width: root.width - 2 * x
        text: root.title
        textFormat: Text.PlainText
        font: Typography.headline
        color: AppColors.primaryText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    CardBackground {
        x: stack.x
        y: stack.y
        width: stack.width
        height: stack.height
        cornerRadius: Radius.banner
    }

    Column {
        id: stack

        x: root.margin
        y: heading.y + heading.height + Spacing.small
        width: root.width - 2 * root.margin
    }
}
