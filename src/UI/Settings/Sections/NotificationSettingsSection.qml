import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

SettingsSection {
    id: root

    required property NotificationSettings model

    title: qsTrId("settings.notifications.sectionTitle")

    SettingsToggleRow {
        title: qsTrId("settings.notifications.overheating.title")
        subtitle: qsTrId("settings.notifications.overheating.subtitle")
        isOn: root.model.overheating
        onToggled: root.model.setOverheating(checked)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.standingFan.title")
        subtitle: qsTrId("settings.notifications.standingFan.subtitle")
        isOn: root.model.standingFan
        onToggled: root.model.setStandingFan(checked)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.helperFailure.title")
        subtitle: qsTrId("settings.notifications.helperFailure.subtitle")
        isOn: root.model.helperFailure
        onToggled: root.model.setHelperFailure(checked)
    }
}
