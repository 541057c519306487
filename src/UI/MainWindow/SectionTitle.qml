import QtQuick
import Kestrowind.DesignSystem

// Stands for a section that has no view.
Item {
    id: root

    required property choice section

    implicitHeight: 240
    Accessible.role: Accessible.Heading
    Accessible.name: section.title

    Column {
        anchors.centerIn: parent
        spacing: Spacing.medium

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.section.symbolName
            size: 44
            color: AppColors.tertiaryText
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.section.title
            font: Typography.title2
            color: AppColors.secondaryText
        }
    }
}
