import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// The one place where the helper is installed, reinstalled and removed.
SettingsSection {
    id: root

    required property HelperSettings model

    title: qsTrId("settings.helper.sectionTitle")

    SettingsNoticeRow {
        visible: root.model.isOutdated
        symbolName: "arrow.triangle.2.circlepath"
        symbolColor: AppColors.warning
        text: qsTrId("settings.helper.outdatedNotice")
    }

    SettingsRow {
        HelperStatusRow {
            width: parent.width
            facts: root.model.status
            operation: root.model.operation
        }
    }

    SettingsNoticeRow {
        visible: root.model.needsApproval
        symbolColor: AppColors.warning
        text: qsTrId("settings.helper.approvalNotice")
    }

    SettingsNoticeRow {
        visible: root.model.hasFailure
        symbolColor: AppColors.warning
        text: root.model.failure
    }

    SettingsRow {
        visible: root.model.isUnlocking

        SettingsProgress {
            width: parent.width
            text: qsTrId("settings.helper.unlockingCaption")
        }
    }

    SettingsNoticeRow {
        color: AppColors.danger
        text: root.model.operation.errorMessage
    }

    SettingsRow {
        HelperSafetyExplainer { width: parent.width }
    }
}
