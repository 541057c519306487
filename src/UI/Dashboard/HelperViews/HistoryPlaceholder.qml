import QtQuick
import Kestrowind.DesignSystem

// In place of the charts until two samples make a line.
EmptyState {
    implicitHeight: 200
    title: qsTrId("dashboard.history.collectingTitle")
    titleFont: Typography.headline
    message: qsTrId("dashboard.history.collectingSubtitle")
    measure: Infinity
    spacing: Spacing.tight
    markGap: Spacing.tight
    mark: Symbol {
        name: "chart.xyaxis.line"
        size: 32
        color: AppColors.tertiaryText
    }
}
