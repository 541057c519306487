import QtQuick
import Kestrowind.CurveEditor
import Kestrowind.DesignSystem

// The chart on its card. The help appears below it, and only while nothing is being drawn.
Item {
    id: root

    required property FanCurveChartModel chart
    required property string help

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("curves.chart.label")
    Accessible.description: help

    CardBackground {
        anchors.fill: parent
        cornerRadius: Radius.card
    }

    FanCurveChart {
        id: editor

        x: Spacing.small
        y: Spacing.medium
        width: root.width - 2 * Spacing.small
        height: root.height - 2 * Spacing.medium
        model: root.chart
    }

    Tooltip {
        text: root.help
        shown: editor.isPointedAt && root.chart.isIdle && !editor.isMenuOpen
        delay: 1500
    }
}
