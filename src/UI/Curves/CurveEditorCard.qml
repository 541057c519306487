import QtQuick
import Kestrowind.CurveEditor
import Kestrowind.DesignSystem

// The chart on its card. The help appears at the pointer, and only while nothing is being drawn.
Item {
    id: root

    required property FanCurveChartModel chart
    required property string help

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("curves.chart.label")
    Accessible.description: help
    Accessible.onPressAction: chart.addPointAnywhere()

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
        property point place

        text: root.help
        x: place.x - width / 2
        y: place.y + 20 + height < root.height ? place.y + 20 : place.y - 8 - height
        onAboutToShow: place = editor.mapToItem(root, editor.pointer)
        shown: editor.isPointedAt && root.chart.isIdle && !editor.isMenuOpen
        delay: 1500
    }
}
