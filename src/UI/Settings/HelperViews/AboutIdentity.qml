import QtQuick
import Kestrowind.DesignSystem

// The application's icon and name.
Item {
    id: root

    readonly property real iconSide: 40
    readonly property real shadowRoom: 13

    implicitHeight: iconSide
    Accessible.role: Accessible.StaticText
    Accessible.name: name.text
    Accessible.description: caption.text

    AppIcon {
        x: -root.shadowRoom
        y: -root.shadowRoom
        width: root.iconSide + 2 * root.shadowRoom
        height: width
        side: root.iconSide
    }

    Column {
        x: root.iconSide + Spacing.medium
        anchors.verticalCenter: parent.verticalCenter
        width: root.width - x
        spacing: Spacing.hair

        Text {
            id: name

            width: parent.width
            text: qsTrId("settings.about.applicationName")
            textFormat: Text.PlainText
            elide: Text.ElideRight
            font: Typography.headline
            color: AppColors.primaryText
            Accessible.ignored: true
        }

        Text {
            id: caption

            width: parent.width
            text: qsTrId("settings.about.optimisedForCaption")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.caption
            color: AppColors.secondaryText
            Accessible.ignored: true
        }
    }
}
