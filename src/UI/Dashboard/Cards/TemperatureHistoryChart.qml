import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The hottest temperatures over time.
Column {
    id: root

    required property lineChart chart

    spacing: Spacing.small

    Row {
        spacing: Spacing.regular

        ChartLegendEntry {
            text: qsTrId("dashboard.chart.cpuMaxLegend")
            Rectangle { width: 8; height: 8; radius: 4; color: AppColors.cpuSeries }
        }

        ChartLegendEntry {
            text: qsTrId("dashboard.chart.gpuMaxLegend")
            Rectangle { width: 8; height: 8; radius: 4; color: AppColors.gpuSeries }
        }
    }

    HistoryPlot {
        width: parent.width
        height: 190
        chart: root.chart
    }
}
