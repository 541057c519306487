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
        onFlipped: on => root.model.setOverheating(on)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.standingFan.title")
        subtitle: qsTrId("settings.notifications.standingFan.subtitle")
        isOn: root.model.standingFan
        onFlipped: on => root.model.setStandingFan(on)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.helperFailure.title")
        subtitle: qsTrId("settings.notifications.helperFailure.subtitle")
        isOn: root.model.helperFailure
        onFlipped: on => root.model.setHelperFailure(on)
    }
}
