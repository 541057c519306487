import QtQuick
import Kestrowind.DesignSystem

// A machine without fans, or one that tells nothing of them.
EmptyState {
    title: qsTrId("dashboard.unsupported.title")
    message: qsTrId("dashboard.unsupported.message")
    lineHeight: 1.15
    mark: Symbol {
        name: "fanblades.slash"
        size: 44
        color: AppColors.secondaryText
    }
}
