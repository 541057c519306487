import QtQuick
import Kestrowind.DesignSystem

// A Label whose number stands still while it changes: every digit has the same width.
Item {
    id: root

    required property string text
    property font font: Typography.body
    property color color: AppColors.primaryText

    implicitWidth: row.implicitWidth
    implicitHeight: metrics.implicitHeight
    baselineOffset: metrics.baselineOffset

    // Gives height and base line even to an empty text.
    Text {
        id: metrics

        visible: false
        text: "0"
        font: root.font
    }

    Row {
        id: row

        Repeater {
            model: root.text.length

            Text {
                id: cell

                required property int index
                // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
                // qmllint disable unqualified
                readonly property string character: root.text.charAt(cell.index)

                font: root.font
                color: root.color
                // qmllint enable unqualified
                width: cell.character >= "0" && cell.character <= "9" ? Typography.digitWidth(cell.font)
                                                                      : implicitWidth
                horizontalAlignment: Text.AlignHCenter
                text: cell.character
                textFormat: Text.PlainText
            }
        }
    }
}
