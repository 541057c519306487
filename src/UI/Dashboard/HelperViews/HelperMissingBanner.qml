import QtQuick
import Kestrowind.DesignSystem

// Says that the fans can be watched but not controlled.
Banner {
    text: qsTrId("dashboard.helperBanner.message")
    font: Typography.callout
    Accessible.role: Accessible.AlertMessage
}
