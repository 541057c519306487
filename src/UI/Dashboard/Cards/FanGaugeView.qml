import QtQuick
import Kestrowind.DesignSystem

// One fan: the ring, the speed in it and the turning glyph in the ring's opening.
Item {
    id: root

    required property string name
    required property string readout
    required property string caption
    required property string spoken
    required property real fraction
    required property real revolutionsPerSecond
    required property bool isParked
    property bool showsName: false

    readonly property real diameter: 110

    implicitWidth: diameter
    implicitHeight: diameter + (showsName ? Spacing.small + nameLabel.implicitHeight : 0)
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    FanGaugeArcs {
        diameter: root.diameter
        lineWidth: 8
        gapDegrees: 90
        animationDuration: 0.8
        fraction: root.fraction
    }

    TabularText {
        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: 31
        text: root.readout
        font: Typography.gaugeNumber
    }

    Label {
        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: 60
        text: root.caption
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
            revolutionsPerSecond: root.revolutionsPerSecond
            fill: root.isParked ? SpinningFanBlades.Parked : SpinningFanBlades.Airflow
        }
    }

    Label {
        id: nameLabel

        visible: root.showsName
        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: root.diameter + Spacing.small
        text: root.name
        font: Typography.weighted(Typography.subheadline, Font.Medium)
        color: AppColors.secondaryText
    }
}
