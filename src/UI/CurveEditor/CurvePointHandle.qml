import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// How a point looks and moves, and what a screen reader says of it.
CurvePointItem {
    id: root

    readonly property bool isDragged: index === chart.draggedPoint
    readonly property bool isHovered: index === chart.hoveredPoint
    property real centreX: row.x
    property real centreY: row.y

    x: centreX - width / 2
    y: centreY - height / 2
    width: chart.isEditable ? 13 : 9
    height: width
    scale: isDragged ? 1.4 : isHovered ? 1.1 : 1
    activeFocusOnTab: index === chart.currentPoint || activeFocus
    Accessible.role: Accessible.Slider
    Accessible.name: row.spokenLabel
    Accessible.description: row.spokenValue
    Accessible.focusable: true
    Accessible.onPressAction: chart.pressKey(index, Qt.Key_Menu, Qt.NoModifier)

    Component.onCompleted: if (chart.motion === FanCurveChartModel.Edit) appear.start()

    Behavior on centreX {
        enabled: root.chart.motion === FanCurveChartModel.Edit
        SpringMotion { timing: Springs.edit }
    }
    Behavior on centreY {
        enabled: root.chart.motion === FanCurveChartModel.Edit
        SpringMotion { timing: Springs.edit }
    }
    Behavior on scale {
        SpringMotion { timing: root.isDragged ? Springs.grab : Springs.release }
    }

    SpringMotion {
        id: appear

        target: disc
        property: "scale"
        from: 0
        to: 1
        timing: Springs.edit
    }

    CurvePointDisc {
        id: disc

        anchors.fill: parent
        isEditable: root.chart.isEditable
        isLit: root.isDragged || root.isHovered
        isFocused: root.activeFocus && root.chart.hasKeyboardFocus
    }
}
