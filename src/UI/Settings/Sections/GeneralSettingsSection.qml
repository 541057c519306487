import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

SettingsSection {
    id: root

    required property GeneralSettings model

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
}
