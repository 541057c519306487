import QtQuick
import Kestrowind.DesignSystem

// Says that the fans can be watched but not controlled.
Item {
    id: root

    implicitHeight: Math.max(icon.height, message.height) + 2 * Spacing.medium
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    CardBackground {
        anchors.fill: parent
        cornerRadius: Radius.banner
        tint: Qt.alpha(AppColors.accent, 0.10)
    }

    Symbol {
        id: icon

        x: Spacing.regular
        anchors.verticalCenter: parent.verticalCenter
        name: "info.circle.fill"
        size: 18
        color: AppColors.accent
    }

    Text {
        id: message

        anchors.left: icon.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: Spacing.regular
        anchors.verticalCenter: parent.verticalCenter
        text: qsTrId("dashboard.helperBanner.message")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.callout
        color: AppColors.primaryText
        Accessible.ignored: true
    }
}
