import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// One fan: the ring, the speed in it and the turning glyph in the ring's opening.
Item {
    id: root

    required property fanGaugeFacts row
    property bool showsName: false

    readonly property real diameter: 110

    implicitWidth: diameter
    implicitHeight: diameter + (showsName ? Spacing.small + nameLabel.implicitHeight : 0)
    Accessible.role: Accessible.StaticText
    Accessible.name: row.spoken

    FanGaugeArcs {
        diameter: root.diameter
        lineWidth: 8
        gapDegrees: 90
        animationDuration: 0.8
        fraction: root.row.fraction
    }

    TabularText {
        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: 31
        text: root.row.readout
        font: Typography.gaugeNumber
    }

    Label {
        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: 60
        text: root.row.caption
        font: Typography.caption
        color: AppColors.secondaryText
    }

    Item {
        id: arcsCentre

        width: root.diameter
        height: root.diameter

        SpinningFanBlades {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 84
            diameter: 24
            revolutionsPerSecond: root.row.revolutionsPerSecond
            fill: root.row.isParked ? SpinningFanBlades.Parked : SpinningFanBlades.Airflow
        }
    }

    Label {
        id: nameLabel

        visible: root.showsName
        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: root.diameter + Spacing.small
        text: root.row.name
        font: Typography.weighted(Typography.subheadline, Font.Medium)
        color: AppColors.secondaryText
    }
}
