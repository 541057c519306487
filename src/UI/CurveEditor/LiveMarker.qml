import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// The temperature now as a dashed line with a label, and a dot where the curve is at it.
Item {
    id: root

    required property FanCurveChartModel chart

    readonly property curveLiveMarker live: chart.live
    readonly property bool glides: chart.motion !== FanCurveChartModel.None
    readonly property springTiming timing: chart.motion === FanCurveChartModel.Edit ? Springs.edit : Springs.level
    property real lineX: live.x
    property real labelX: live.labelX
    property real operatingY: live.operatingY

    visible: live.isShown

    Behavior on lineX { enabled: root.glides; SpringMotion { timing: root.timing } }
    Behavior on labelX { enabled: root.glides; SpringMotion { timing: root.timing } }
    Behavior on operatingY { enabled: root.glides; SpringMotion { timing: root.timing } }

    DashedLine {
        x: root.lineX - width / 2
        width: 1.5
        height: root.height
        color: AppColors.temperatureColor(root.live.temperature)
        opacity: 0.45
    }

    Rectangle {
        x: Math.round(root.labelX - width / 2)
        y: 10 - height / 2
        width: label.implicitWidth + 12
        height: 18
        radius: height / 2
        color: AppColors.temperatureLabelColor(root.live.temperature)

        TabularText {
            id: label

            anchors.centerIn: parent
            text: root.live.text
            font: Typography.weighted(Typography.caption2, Font.DemiBold)
            color: "white"
            Accessible.ignored: true
        }
    }

    Rectangle {
        x: root.lineX - width / 2
        y: root.operatingY - height / 2
        width: 10
        height: 10
        radius: 5
        color: AppColors.temperatureColor(root.live.temperature)
        border.width: 2
        border.color: "white"
    }
}
