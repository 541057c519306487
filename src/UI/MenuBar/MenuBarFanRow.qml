import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// One fan: its name, its speed, and how much of its highest speed that is.
PointerWatch {
    id: root

    required property menuBarFan row

    implicitHeight: bar.y + bar.height
    Accessible.role: Accessible.StaticText
    Accessible.name: row.spokenText
    Accessible.description: row.reason

    Tooltip { text: root.row.reason; shown: root.hovered }

    FanGlyph {
        x: 0
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        side: 16
        color: AppColors.secondaryText
    }

    Label {
        id: name

        x: 28
        width: speed.x - x - Spacing.small
        text: root.row.name
        font: Typography.weighted(Typography.subheadline, Font.Medium)
        elide: Text.ElideRight
    }

    TabularText {
        id: speed

        anchors.baseline: name.baseline
        x: (unit.visible ? unit.x - 3 : root.width) - width
        text: root.row.speedText
        font: root.row.isParked ? Typography.caption
                                : Typography.weighted(Typography.subheadline, Font.Bold)
        color: root.row.isParked ? AppColors.secondaryText : AppColors.primaryText
    }

    Label {
        id: unit

        anchors.baseline: name.baseline
        anchors.right: parent.right
        visible: !root.row.isParked
        text: qsTrId("menuBar.fan.rpmUnit")
        font: Typography.caption2
        color: AppColors.secondaryText
    }

    MenuBarSpeedBar {
        id: bar

        x: name.x
        y: name.height + 5
        width: root.width - x
        fraction: root.row.fraction
        filled: root.row.showsBar
        muted: root.row.isParked
    }
}
