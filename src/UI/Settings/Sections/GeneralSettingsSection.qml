import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

SettingsSection {
    id: root

    required property GeneralSettings model
    required property NotificationSettings notifications

    title: qsTrId("settings.general.sectionTitle")

    SettingsToggleRow {
        title: qsTrId("settings.general.launchAtLogin.title")
        subtitle: qsTrId("settings.general.launchAtLogin.subtitle")
        isOn: root.model.launchesAtLogin
        onFlipped: on => root.model.setLaunchesAtLogin(on)
    }

    SettingsRow {
        visible: root.model.launchAtLoginError.length > 0

        SettingsNotice {
            width: parent.width
            symbolName: "exclamationmark.circle.fill"
            symbolColor: AppColors.danger
            color: AppColors.danger
            text: root.model.launchAtLoginError
            Accessible.role: Accessible.AlertMessage
        }
    }

    SettingsToggleRow {
        title: qsTrId("settings.general.hideDockIcon.title")
        subtitle: qsTrId("settings.general.hideDockIcon.subtitle")
        isOn: root.model.hidesDockIcon
        onFlipped: on => root.model.setHidesDockIcon(on)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.overheating.title")
        subtitle: qsTrId("settings.notifications.overheating.subtitle")
        isOn: root.notifications.overheating
        onFlipped: on => root.notifications.setOverheating(on)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.standingFan.title")
        subtitle: qsTrId("settings.notifications.standingFan.subtitle")
        isOn: root.notifications.standingFan
        onFlipped: on => root.notifications.setStandingFan(on)
    }

    SettingsToggleRow {
        title: qsTrId("settings.notifications.helperFailure.title")
        subtitle: qsTrId("settings.notifications.helperFailure.subtitle")
        isOn: root.notifications.helperFailure
        onFlipped: on => root.notifications.setHelperFailure(on)
    }
}
