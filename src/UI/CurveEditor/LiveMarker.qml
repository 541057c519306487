import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// The temperature now as a dashed line with a label, a dot with its words where the curve is at it, and a
// ring where the fan really is.
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

    Glide { id: actual; target: root.live.actualY; springs: root.glides; timing: root.timing }

    Rectangle {
        visible: root.live.hasActual
        x: line.value - width / 2
        y: actual.value - height / 2
        width: 8
        height: 8
        radius: 4
        color: AppColors.popupBackground
        border.width: 2
        border.color: AppColors.fanGradientEnd
    }

    // Beside the dot, in the area under a curve that rises; on its other side near the plot's end.
    TabularText {
        id: words

        readonly property bool isLeft: line.value + 12 + width > root.width

        x: Math.round(isLeft ? line.value - 12 - width : line.value + 12)
        y: Math.round(Math.min(operating.value + 8, root.height - height - 4))
        text: root.live.operatingText
        font: Typography.weighted(Typography.caption, Font.Medium)
        color: AppColors.secondaryText
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
