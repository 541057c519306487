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

    visible: live.isShown

    Glide { id: line; target: root.live.x; springs: root.glides; timing: root.timing }
    Glide { id: middle; target: root.live.labelX; springs: root.glides; timing: root.timing }
    Glide { id: operating; target: root.live.operatingY; springs: root.glides; timing: root.timing }

    DashedLine {
        x: line.value - width / 2
        width: 1.5
        height: root.height
        color: AppColors.temperatureColor(root.live.temperature)
        opacity: 0.45
    }

    // Below the label: at 100 % the two meet.
    Rectangle {
        x: line.value - width / 2
        y: operating.value - height / 2
        width: 10
        height: 10
        radius: 5
        color: AppColors.temperatureColor(root.live.temperature)
        border.width: 2
        border.color: "white"
    }

    Rectangle {
        x: Math.round(middle.value - width / 2)
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
        }
    }
}
