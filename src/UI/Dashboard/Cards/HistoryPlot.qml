import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// A chart that says what it shows under the pointer.
HistoryChart {
    id: root

    Accessible.role: Accessible.Chart
    Accessible.name: chart.spoken

    ChartReadoutMark {
        height: parent.height
        readout: root.readout
    }

    CalloutBubble {
        anchorPoint: Qt.point(root.readout.x, 0)
        // Over the legend, so that it covers no line.
        bounds: Qt.rect(0, -40, root.width, root.height + 40)
        distance: 2
        text: root.readout.text
        visible: root.readout.isShown
    }
}
