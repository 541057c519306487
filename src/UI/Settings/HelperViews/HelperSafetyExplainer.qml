import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// Why a helper with an administrator's rights is nothing to be afraid of.
Column {
    id: root

    spacing: Spacing.small

    SymbolLabel {
        width: root.width
        symbolName: "checkmark.shield.fill"
        symbolColor: AppColors.success
        text: qsTrId("settings.helper.safety.title")
        font: Typography.weighted(Typography.body, Font.Medium)
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    SettingsNotice {
        width: root.width
        symbolName: "arrow.up.to.line"
        symbolColor: AppColors.secondaryText
        text: qsTrId("settings.helper.safety.boostOnly")
        color: AppColors.secondaryText
    }

    SettingsNotice {
        width: root.width
        symbolName: "arrow.uturn.backward.circle"
        symbolColor: AppColors.secondaryText
        text: qsTrId("settings.helper.safety.automaticRelease")
        color: AppColors.secondaryText
    }

    SettingsNotice {
        width: root.width
        symbolName: "cpu"
        symbolColor: AppColors.secondaryText
        text: qsTrId("settings.helper.safety.macOSProtection")
        color: AppColors.secondaryText
    }
}
