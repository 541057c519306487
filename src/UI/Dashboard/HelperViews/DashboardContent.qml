import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The full dashboard: cards below each other.
Item {
    id: root

    required property DashboardModel model

    implicitHeight: stack.height + 2 * Spacing.section

    Column {
        id: stack

        x: Spacing.section
        y: Spacing.section
        width: root.width - 2 * Spacing.section
        spacing: Spacing.section

        HelperMissingBanner {
            visible: root.model.helperMissing
            width: parent.width
        }

        FanHeroCard {
            width: parent.width
            fans: root.model.fans
        }

        TemperatureOverviewRow {
            width: parent.width
            cpu: root.model.cpu
            gpu: root.model.gpu
        }

        HistoryCard {
            width: parent.width
            model: root.model
        }
    }

    MessageDialog { notice: root.model.historyExport.failure }
}
