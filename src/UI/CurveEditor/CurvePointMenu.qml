import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// What can be done to one point, for those who do not drag it.
PopupMenu {
    id: root

    required property FanCurveChartModel chart

    property int point: -1

    PopupMenuItem {
        text: qsTrId("curves.chart.addPoint")
        symbolName: "plus"
        enabled: root.chart.hasRoomAfter(root.point)
        onTriggered: root.chart.pressKey(root.point, Qt.Key_N, Qt.NoModifier)
    }
    PopupMenuItem {
        text: qsTrId("curves.chart.raiseTemperature")
        symbolName: "chevron.right"
        onTriggered: root.chart.pressKey(root.point, Qt.Key_Right, Qt.NoModifier)
    }
    PopupMenuItem {
        text: qsTrId("curves.chart.lowerTemperature")
        symbolName: "chevron.left"
        onTriggered: root.chart.pressKey(root.point, Qt.Key_Left, Qt.NoModifier)
    }
    PopupMenuSeparator {}
    PopupMenuItem {
        text: qsTrId("curves.chart.deletePoint")
        symbolName: "trash"
        destructive: true
        enabled: root.chart.canDelete
        onTriggered: root.chart.deletePoint(root.point)
    }
}
