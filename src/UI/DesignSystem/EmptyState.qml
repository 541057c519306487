import QtQuick
import Kestrowind.DesignSystem

// In place of what is not there: a mark, what is the matter, why, and perhaps what can be done about it.
Item {
    id: root

    required property string title
    required property string message
    property alias mark: frame.data
    default property alias action: buttons.data
    property alias titleFont: heading.font
    property alias lineHeight: explanation.lineHeight
    property alias spacing: column.spacing
    property real markGap: Spacing.section
    // The width that the texts do not exceed.
    property real measure: 380

    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: message

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Spacing.section, root.measure)
        spacing: Spacing.small

        Item {
            id: frame

            anchors.horizontalCenter: parent.horizontalCenter
            width: childrenRect.width
            height: childrenRect.height
        }

        Label {
            id: heading

            width: parent.width
            topPadding: root.markGap - column.spacing
            horizontalAlignment: Text.AlignHCenter
            text: root.title
            wrapMode: Text.Wrap
            font: Typography.title3
        }

        Label {
            id: explanation

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.message
            wrapMode: Text.Wrap
            color: AppColors.secondaryText
        }

        Column {
            id: buttons

            anchors.horizontalCenter: parent.horizontalCenter
            visible: children.length > 0
            topPadding: Spacing.medium
        }
    }
}
