import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// The application's icon and name.
Item {
    id: root

    readonly property real iconSide: 40
    readonly property real shadowRoom: 13

    implicitHeight: iconSide
    Accessible.role: Accessible.StaticText
    Accessible.name: words.title
    Accessible.description: words.subtitle

    AppIcon {
        x: -root.shadowRoom
        y: -root.shadowRoom
        width: root.iconSide + 2 * root.shadowRoom
        height: width
        side: root.iconSide
    }

    SettingsRowLabel {
        id: words

        x: root.iconSide + Spacing.medium
        anchors.verticalCenter: parent.verticalCenter
        width: root.width - x
        title: qsTrId("settings.about.applicationName")
        subtitle: qsTrId("settings.about.optimisedForCaption")
        font: Typography.headline
    }
}
