import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// One fan: the ring with what the helper applies as a mark on it, the speed in it, the turning glyph in
// its opening, and below it why the fan runs as it does.
Item {
    id: root

    required property fanGaugeFacts row
    property bool showsName: false

    readonly property real diameter: 110

    implicitWidth: diameter
    implicitHeight: reason.y + reason.height
    Accessible.role: Accessible.StaticText
    Accessible.name: row.spoken

    FanGaugeArcs {
        diameter: root.diameter
        lineWidth: 8
        gapDegrees: 90
        animationDuration: 0.8
        fraction: root.row.fraction
        target: root.row.targetFraction
    }

    PointerWatch {
        id: pointer

        width: root.diameter
        height: root.diameter

        Tooltip { text: root.row.targetText; shown: pointer.hovered; gap: -4 }
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

    // Wider than the gauge, but not into the next one's.
    FanReasonLine {
        id: reason

        anchors.horizontalCenter: arcsCentre.horizontalCenter
        y: root.showsName ? nameLabel.y + nameLabel.height + Spacing.hair : root.diameter + Spacing.small
        width: Math.min(implicitWidth, root.diameter + 54)
        text: root.row.reason
        explanation: root.row.explanation
    }
}
