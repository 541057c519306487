import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// What can be done to one point beside moving it.
PopupMenu {
    id: root

    required property FanCurveChartModel chart

    property int point: -1

    PopupMenuItem {
        text: qsTrId("curves.chart.deletePoint")
        symbolName: "trash"
        destructive: true
        enabled: root.chart.canDelete
        onTriggered: root.chart.deletePoint(root.point)
    }
}
