import QtQuick
import Kestrowind.DesignSystem

// A number that stands still while it changes: every digit has the same width.
Item {
    id: root

    required property string text
    property font font: Typography.body
    property color color: AppColors.primaryText

    implicitWidth: row.implicitWidth
    implicitHeight: metrics.implicitHeight
    baselineOffset: metrics.baselineOffset
    Accessible.role: Accessible.StaticText
    Accessible.name: text

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
                required property int index
                readonly property string character: root.text.charAt(index)

                width: character >= "0" && character <= "9" ? Typography.digitWidth(root.font)
                                                            : implicitWidth
                horizontalAlignment: Text.AlignHCenter
                text: character
                textFormat: Text.PlainText
                font: root.font
                color: root.color
                Accessible.ignored: true
            }
        }
    }
}
