import QtQuick
import Kestrowind.DesignSystem

// There is no preset whose curve could be shown.
EmptyState {
    id: root

    signal createRequested()

    title: qsTrId("curves.emptyState.title")
    message: qsTrId("curves.emptyState.description")
    markGap: Spacing.small
    lineHeight: 1.15
    mark: Symbol {
        name: "chart.xyaxis.line"
        size: 44
        color: AppColors.tertiaryText
    }

    PushButton {
        text: qsTrId("curves.emptyState.createPreset")
        symbolName: "plus"
        prominent: true
        onClicked: root.createRequested()
    }
}
