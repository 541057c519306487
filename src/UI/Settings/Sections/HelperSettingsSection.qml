import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// The one place where the helper is installed, reinstalled and removed.
SettingsSection {
    id: root

    required property HelperSettings model

    title: qsTrId("settings.helper.sectionTitle")

    SettingsRow {
        visible: root.model.isOutdated

        SettingsNotice {
            width: parent.width
            symbolName: "arrow.triangle.2.circlepath"
            symbolColor: AppColors.warning
            text: qsTrId("settings.helper.outdatedNotice")
            Accessible.role: Accessible.AlertMessage
        }
    }

    SettingsRow {
        HelperStatusRow {
            width: parent.width
            model: root.model
        }
    }

    SettingsRow {
        visible: root.model.hasFailure

        SettingsNotice {
            width: parent.width
            symbolName: "exclamationmark.circle.fill"
            symbolColor: AppColors.warning
            text: root.model.failure
            Accessible.role: Accessible.AlertMessage
        }
    }

    SettingsRow {
        visible: root.model.isUnlocking

        SettingsProgress {
            width: parent.width
            text: qsTrId("settings.helper.unlockingCaption")
        }
    }

    SettingsRow {
        visible: root.model.errorMessage.length > 0

        SettingsNotice {
            width: parent.width
            symbolName: "exclamationmark.circle.fill"
            symbolColor: AppColors.danger
            color: AppColors.danger
            text: root.model.errorMessage
            Accessible.role: Accessible.AlertMessage
        }
    }

    SettingsRow {
        HelperSafetyExplainer { width: parent.width }
    }
}
