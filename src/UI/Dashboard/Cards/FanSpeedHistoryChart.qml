import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The fans' speeds over time.
Column {
    id: root

    required property lineChart chart
    required property FanGaugeRows fans

    spacing: Spacing.small

    Flow {
        width: parent.width
        spacing: Spacing.regular

        Repeater {
            model: root.fans

            ChartLegendEntry {
                id: entry

                required property string name
                required property bool isDashed

                text: name
                LineSample { isDashed: entry.isDashed }
            }
        }
    }

    HistoryPlot {
        width: parent.width
        height: 150
        chart: root.chart
    }
}
