import QtQuick
import Kestrowind.Settings

// The versions of the application and of the helper that answers it.
SettingsSection {
    id: root

    required property string version
    required property HelperSettings helper

    title: qsTrId("settings.about.sectionTitle")

    SettingsRow {
        AboutIdentity { width: parent.width }
    }

    SettingsValueRow {
        label: qsTrId("settings.about.versionLabel")
        value: root.version
    }

    SettingsValueRow {
        visible: root.helper.hasStatus
        label: qsTrId("settings.about.helperVersionLabel")
        value: root.helper.version
    }
}
