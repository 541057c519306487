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

    SettingsNoticeRow {
        color: AppColors.danger
        text: root.model.launchAtLoginError
    }

    SettingsNoticeRow {
        visible: root.model.needsApproval
        symbolColor: AppColors.warning
        text: qsTrId("settings.general.launchAtLogin.approvalNotice")
    }

    Repeater {
        model: root.model.switches
        delegate: SettingsToggleRow {
            required property SettingSwitch modelData

            title: modelData.title
            subtitle: modelData.subtitle
            isOn: modelData.isOn
            onFlipped: on => modelData.isOn = on
        }
    }
}
