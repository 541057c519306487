import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The fans' speeds over time.
Column {
    id: root

    required property lineChart chart
    required property RowList fans

    spacing: Spacing.small

    Flow {
        width: parent.width
        spacing: Spacing.regular

        Repeater {
            model: root.fans

            ChartLegendEntry {
                id: entry

                required property fanGaugeFacts row

                text: row.name
                LineSample { isDashed: entry.row.isDashed }
            }
        }
    }

    HistoryPlot {
        width: parent.width
        height: 150
        chart: root.chart
    }
}
