import QtQuick
import Kestrowind.Settings

SettingsSection {
    id: root

    required property AboutSettings model

    title: qsTrId("settings.about.sectionTitle")

    SettingsRow {
        AboutIdentity { width: parent.width }
    }

    SettingsValueRow {
        label: qsTrId("settings.about.versionLabel")
        value: root.model.version
    }

    SettingsValueRow {
        visible: root.model.hasHelperVersion
        label: qsTrId("settings.about.helperVersionLabel")
        value: root.model.helperVersion
    }
}
