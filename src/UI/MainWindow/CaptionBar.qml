import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// One line about what the fans are doing.
Item {
    id: root

    required property CaptionModel model
    readonly property color color: AppColors.toneColor(model.tone)

    implicitHeight: 22
    Accessible.role: Accessible.StaticText
    Accessible.name: model.text

    Row {
        anchors.centerIn: parent
        spacing: 5

        SpinningFanMark {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.model.isInProgress
            diameter: 14
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: !root.model.isInProgress && root.model.symbolName.length > 0
            name: root.model.symbolName
            size: 17
            color: root.color
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.width - 2 * Spacing.huge)
            text: root.model.text
            font: Typography.headline
            color: root.color
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }
}
