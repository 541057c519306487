import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// One point of the curve: what a screen reader says of it, and where the keyboard works on it.
// Pointers are the gesture area's.
Item {
    id: root

    required property FanCurveChartModel chart
    required property int index
    required property real plotX
    required property real plotY
    required property string spokenLabel
    required property string spokenValue

    readonly property bool isCurrent: index === chart.currentPoint
    readonly property bool isDragged: index === chart.draggedPoint
    readonly property bool isHovered: index === chart.hoveredPoint
    readonly property bool visualFocus: activeFocus && chart.hasKeyboardFocus
    // Read as the value of a slider's interface, which screen readers speak as it stands.
    readonly property string value: spokenValue
    property real centreX: plotX
    property real centreY: plotY

    function takeKeyboard() {
        if (isCurrent && chart.hasKeyboardFocus)
            forceActiveFocus()
    }

    x: centreX - width / 2
    y: centreY - height / 2
    width: chart.isEditable ? 16 : 9
    height: width
    scale: isDragged ? 1.4 : isHovered ? 1.18 : 1
    activeFocusOnTab: isCurrent || activeFocus
    Accessible.role: Accessible.Slider
    Accessible.name: spokenLabel
    Accessible.description: spokenValue
    Accessible.focusable: true

    onActiveFocusChanged: if (activeFocus) chart.hasKeyboardFocus = true
    onIsCurrentChanged: takeKeyboard()
    Component.onCompleted: {
        takeKeyboard()
        if (chart.motion === FanCurveChartModel.Edit)
            appear.start()
    }
    Keys.onPressed: event => {
        if (!isDragged)
            chart.hasKeyboardFocus = true
        event.accepted = chart.pressKey(index, event.key, event.modifiers)
    }

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
        isFocused: root.visualFocus
    }
}
