import QtQuick
import Kestrowind.DesignSystem

// A section that is higher than the window, with something for the keyboard at both ends.
Item {
    implicitHeight: cards.height + 2 * Spacing.section

    Column {
        id: cards

        x: Spacing.section
        y: Spacing.section
        width: parent.width - 2 * Spacing.section
        spacing: Spacing.regular

        PushButton { text: "First" }

        Repeater {
            model: 6

            CardBackground {
                width: cards.width
                height: 180
                cornerRadius: Radius.card
            }
        }

        PushButton { text: "Last" }
    }
}
