import QtQuick
import Kestrowind.DesignSystem

Item {
    id: root

    required property string title
    default property alias content: body.data

    CardBackground { anchors.fill: parent; cornerRadius: Radius.card }

    Text {
        x: Spacing.regular
        y: Spacing.medium
        text: root.title
        font: Typography.headline
        color: AppColors.primaryText
    }

    Item {
        id: body

        anchors.fill: parent
        anchors.margins: Spacing.regular
        anchors.topMargin: 44
    }
}
