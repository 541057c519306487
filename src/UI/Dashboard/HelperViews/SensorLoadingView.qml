import QtQuick
import Kestrowind.DesignSystem

// Before the first sample.
EmptyState {
    title: qsTrId("dashboard.loading.title")
    message: qsTrId("dashboard.loading.subtitle")
    measure: 360
    mark: SpinningFanMark { diameter: 44 }
}
