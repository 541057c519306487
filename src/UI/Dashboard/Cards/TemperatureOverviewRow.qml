import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// Processor and graphics side by side.
Row {
    id: root

    required property temperatureFacts cpu
    required property temperatureFacts gpu

    readonly property real cardWidth: (width - spacing) / 2

    spacing: Spacing.section

    TemperatureCard {
        width: root.cardWidth
        facts: root.cpu
        accentColor: AppColors.cpuSeries
    }

    TemperatureCard {
        width: root.cardWidth
        facts: root.gpu
        accentColor: AppColors.gpuSeries
    }
}
