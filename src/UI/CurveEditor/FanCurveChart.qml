import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.CurveEditor

// The interactive plot of one curve. One stop for Tab: the point that the keyboard works on.
FocusScope {
    id: root

    required property FanCurveChartModel model
    readonly property bool isMenuOpen: menu.visible
    readonly property bool isPointedAt: gestures.hovered

    // For bubbles, in the plot: they may cover the margins, too.
    readonly property rect bubbleBounds: Qt.rect(-40, -14, width - 12, height)

    readonly property point pointer: gestures.pointer

    // The current point has the keyboard; whether that shows, the model says.
    function giveKeyboard(): void {
        if (model.currentPoint < handles.count)
            handles.itemAt(model.currentPoint).forceActiveFocus()
    }

    implicitWidth: 700
    implicitHeight: 340
    onActiveFocusChanged: if (!activeFocus) model.hasKeyboardFocus = false

    ChartGridAndAxes {
        anchors.fill: parent
        chart: root.model
    }

    DemandFloors {
        x: root.model.plot.x
        y: root.model.plot.y
        width: root.model.plot.width
        height: root.model.plot.height
        chart: root.model
    }

    CurveShape {
        x: root.model.plot.x - bleed
        y: root.model.plot.y - bleed
        width: root.model.plot.width + 2 * bleed
        height: root.model.plot.height + 2 * bleed
        chart: root.model
    }

    Item {
        id: plot

        x: root.model.plot.x
        y: root.model.plot.y
        width: root.model.plot.width
        height: root.model.plot.height

        LiveMarker {
            anchors.fill: parent
            chart: root.model
        }

        Repeater {
            id: handles

            model: root.model.points
            delegate: CurvePointHandle {
                z: isDragged || isHovered ? 1 : 0
                chart: root.model
            }
        }

        GhostHandle {
            anchors.fill: parent
            ghost: root.model.ghost
            bounds: root.bubbleBounds
        }

        DragCalloutView {
            z: 2
            callout: root.model.callout
            bounds: root.bubbleBounds
        }
    }

    CurveGestureArea {
        id: gestures

        anchors.fill: parent
        chart: root.model
        onPointPressed: root.giveKeyboard()
    }

    CurvePointMenu {
        id: menu

        property bool isByKeyboard: false

        chart: root.model
        onClosed: {
            root.model.hasKeyboardFocus = isByKeyboard
            root.giveKeyboard()
        }
    }

    Connections {
        target: root.model
        function onContextMenuRequested(index: int) {
            const handle = handles.itemAt(index)
            menu.point = index
            menu.title = (handle as CurvePointHandle).row.spokenLabel
            menu.isByKeyboard = !root.model.isLedByPointer
            menu.openAt(plot, Qt.point(handle.x + handle.width, handle.y + handle.height))
        }
        function onCurrentPointChanged() {
            if (root.activeFocus)
                root.giveKeyboard()
        }
        function onCurveChanged() {
            menu.close()
            if (root.activeFocus)
                root.giveKeyboard()
        }
    }
}
