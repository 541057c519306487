import QtQuick
import Kestrowind.DesignSystem

// A mark and what it stands for.
Row {
    id: root

    required property string text
    default property alias mark: frame.data

    spacing: 6

    Item {
        id: frame

        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }

    Label {
        text: root.text
        font: Typography.caption
        color: AppColors.secondaryText
    }
}
